// Makes the source of the format table from attribute-schema.xsd while the library is built. Arguments:
// schema, output.
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "TalAttributeSchemaHost/table/generator/TableSource.h"

using namespace xercesc;

namespace {

void Generate(const char* schema, const char* output)
{
    // The XML library takes a path that names no drive for a relative one.
    std::ifstream input(schema, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(input), {});
    XercesDOMParser parser;
    parser.parse(MemBufInputSource(reinterpret_cast<const XMLByte*>(text.data()), text.size(), "schema"));
    if (parser.getErrorCount() > 0 || !parser.getDocument())
        throw std::runtime_error("the schema cannot be parsed");
    std::ofstream file(output);
    file << TableSource(parser.getDocument()->getDocumentElement());
    if (!file.flush())
        throw std::runtime_error("the table cannot be written");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    XMLPlatformUtils::Initialize();
    int exitCode = 0;
    try {
        Generate(argv[1], argv[2]);
    } catch (const std::exception& exception) {
        std::cerr << argv[1] << ": error: " << exception.what() << "\n";
        exitCode = 1;
    }
    XMLPlatformUtils::Terminate();
    return exitCode;
}
