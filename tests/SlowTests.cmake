# Read by ctest once it knows the tests.
set_tests_properties(
  CheckProperty.HoldsForAllDocumentsOfTheRepository CheckProperty.HoldsForMutatedDocuments
  FixProperty.HoldsForMutatedDocuments
  Check.DoesNotLookForSuggestionsForEver
  Diff.IsEmptyExactlyWhereTheModelsAreTheSame PROPERTIES LABELS slow)

# Those that need programs which scripts/test-recipes.sh installs.
set_tests_properties(Recipes.ForVimFindThePlaces Recipes.ForPreCommitStopACommit PROPERTIES LABELS recipes)
