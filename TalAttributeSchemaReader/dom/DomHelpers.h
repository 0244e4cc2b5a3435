// The few ways in which every builder writes the DOM and takes text out of it.
#pragma once

#include <xercesc/dom/DOMElement.hpp>

#include "TalAttributeSchemaReader/model/genutl/GuStringArray.h"

/// Appends a line feed and then a new element to `parent`. Returns null when `parent` is null or no part of a
/// document. The element belongs to its document. A name that XML forbids raises `DOMException`.
xercesc::DOMElement* AppendChildElement(xercesc::DOMNode* parent, GuString tagName);
/// The same for a name of the format, which need not become a string first.
xercesc::DOMElement* AppendChildElement(xercesc::DOMNode* parent, const char* tagName);

/// Sets or replaces one XML attribute, empty values included. Does nothing when `element` is null.
void SetElementAttribute(xercesc::DOMElement* element, GuString name, GuString value);
/// The same for a name of the format.
void SetElementAttribute(xercesc::DOMElement* element, const char* name, const GuString& value);

/// The UTF-16 units of a null-terminated text, unchanged. A null pointer gives an empty string.
GuString GuStringFromXMLCh(const XMLCh* text);

/// Appends an element that has one XML attribute.
xercesc::DOMElement* AppendElementWithAttribute(xercesc::DOMNode* parent, const char* tagName,
                                                const char* name, const GuString& value);

/// Appends one element with an "IDRef" for every entry, empty entries included.
void AppendReferences(xercesc::DOMNode* parent, const char* tagName, const GuStringArray& references);

/// The node as an element, or null when it is none.
xercesc::DOMElement* AsElement(xercesc::DOMNode* node);

/// The text as a way through the narrow code page and back leaves it.
GuString ThroughNarrowCodePage(GuString text);
