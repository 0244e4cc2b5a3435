// The sentences about elements, attributes, references and comments.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/findings/Sentence.h"
#include "TalAttributeSchemaHost/table/FormatTable.h"

namespace tal::message {

Sentence EntityContent(const std::string& element, const std::string& entity);
Sentence TextIsSkipped(const std::string& element);

Sentence UnknownElement(const std::string& name, const std::string& suggestion);
Sentence ElementCase(const std::string& name, const std::string& suggestion);
/// `parents` as `ParentsOf` gives them; not empty.
Sentence MisplacedElement(const std::string& name, const std::vector<std::string>& parents,
                          const std::string& suggestion);
Sentence FolderTooDeep();
/// `attribute` is the one whose value here replaces that of the element before, or empty.
Sentence MergedElement(const std::string& name, const std::string& attribute);
Sentence ElementNotWritten(const std::string& name);
Sentence WrittenForAnotherType(const std::string& name, const std::string& type, const std::string& actual);
Sentence ContentIgnored(const std::string& name, bool withAttributes);
Sentence ContentNotRead(const std::string& name);
Sentence NoElementInside(const std::string& name);
Sentence NoAttributes(const std::string& name);

Sentence MissingAttribute(const std::string& element, const std::string& name);
Sentence EmptyAttribute(const std::string& element, const std::string& name);
/// Without a suggestion the attributes that are `read` help, if they are few.
Sentence UnknownAttribute(const std::string& element, const std::string& name, const std::string& suggestion,
                          const std::vector<std::string>& read);
Sentence AttributeCase(const std::string& name, const std::string& suggestion);
Sentence SupersededAttribute(const std::string& name, const std::string& readAs);
Sentence NamespaceAttribute(const std::string& name);
Sentence RenamedAttribute(const std::string& name, const std::string& readAs);
Sentence AttributeNotWritten(const std::string& name);
Sentence AttributeNotRead(const std::string& name, const std::string& written, const std::string& suggestion);
Sentence UnwritableCharacter(const std::string& name);
Sentence OutsideCodePage(unsigned codePage, const std::string& characters, const std::string& name);
Sentence BadFlag(const std::string& value, const std::string& name, Match flag,
                 const std::string& suggestion);

/// `identifier` suppresses nothing.
Sentence StaleSuppression(const std::string& identifier);
Sentence UnknownSuppression(const std::string& what, const std::string& suggestion);
Sentence UnknownIdentifier(const std::string& identifier, const std::string& suggestion);

/// With room for the line of the first definition.
Sentence DefinedTwice(Definition kind, const std::string& id);
Sentence NamesNothing(const std::string& attribute, Definition kind, const std::string& id,
                      const std::string& suggestion);
/// With room for the line of the definition.
Sentence NamesHidden(const std::string& attribute, Definition kind, const std::string& id);
/// To be put into the sentence about the element that is skipped.
std::string ReferencesInto(std::size_t number);

} // namespace tal::message
