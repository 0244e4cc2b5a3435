# Read by ctest once it knows the tests.
set_tests_properties(
  CheckProperty.HoldsForAllDocumentsOfTheRepository CheckProperty.HoldsForMutatedDocuments
  FixProperty.HoldsForMutatedDocuments
  Diff.IsEmptyExactlyWhereTheModelsAreTheSame PROPERTIES LABELS slow)
