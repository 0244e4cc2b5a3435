// The source of the format table.
#pragma once

#include <string>

#include <xercesc/dom/DOMElement.hpp>

/// C++ from the root of the XSD. Throws `std::exception` where the XSD has what the table cannot take.
std::string TableSource(const xercesc::DOMElement* schema);
