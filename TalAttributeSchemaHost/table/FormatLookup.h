// Questions to the format table.
#pragma once

#include <string>
#include <vector>

#include "TalAttributeSchemaHost/scan/DocumentScan.h"
#include "TalAttributeSchemaHost/table/FormatTable.h"

namespace tal {

/// The element of this name in an element of the type, or null.
const ElementRule* FindElement(const ElementType& type, const XMLCh* name);

/// True when an attribute with this name could be read as `rule` says. No other rule of the type says the
/// same then.
bool Matches(const ElementType& type, const AttributeRule& rule, const XMLCh* name);

/// The rule of the attribute from which `rule`, which is not read, is written; null when there is none.
const AttributeRule* SourceOf(const ElementType& type, const AttributeRule& rule);

/// The attribute by which an element of this name defines something somewhere in the format, or null.
const AttributeRule* FindDefining(const XMLCh* name);

/// The attributes that are read in an element of the type.
std::vector<std::string> ReadAttributes(const ElementType& type);

/// The elements that an element of this name is read in, in the order of their names; the root has an empty
/// one.
std::vector<std::string> ParentsOf(const XMLCh* name);

/// True when the flag counts as Yes.
bool CountsAsYes(const GuString& value, Match flag);
/// True for the values that a flag should have.
bool IsFlagValue(const GuString& value, Match flag);

/// True for names that XML or XML Schema gives a meaning: "xmlns:xsi", "xml:lang".
bool BelongsToXml(const std::string& name);

/// False when a written document holds something else in the place of a character.
bool SurvivesWriting(XmlView value);

} // namespace tal
