// What the generator of the format table asks an XSD for.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include <xercesc/dom/DOMElement.hpp>

/// Empty when there is none. Everything that the table takes is ASCII.
std::string Get(const xercesc::DOMElement* element, const std::string& attribute);
/// An attribute of ours, such as "tal:defines".
std::string Fact(const xercesc::DOMElement* element, const std::string& name);
/// The child elements of that name.
std::vector<const xercesc::DOMElement*> Children(const xercesc::DOMElement* parent, const std::string& name);

using Names = std::initializer_list<const char*>;

/// Throws where there is another fact: what the table would not take must not be lost silently.
void ExpectFacts(const xercesc::DOMElement* element, Names known);
/// Nor must a way to describe elements that the table cannot take.
void ExpectChildren(const xercesc::DOMElement* parent, Names known);

/// The attributes of a type. A type without elements has them in an extension of white space.
std::vector<const xercesc::DOMElement*> AttributesOf(const xercesc::DOMElement* type);
bool HasAnyAttribute(const xercesc::DOMElement* type);
