#include "TalAttributeSchemaHost/messages/DocumentMessages.h"

#include <cstdio>

namespace tal::message {

namespace {

constexpr char kNothingIsRead[] = "; nothing of the document is read";

} // namespace

Sentence FileFailed(const std::string& reason)
{
    return reason.c_str();
}

Sentence UnknownCodePage(unsigned codePage)
{
    return ("the system knows no code page " + std::to_string(codePage)).c_str();
}

Sentence NothingIsRead(const std::string& report)
{
    return Sentence().Say(report).Say(kNothingIsRead);
}

Sentence BadVersion(const std::string& version)
{
    return Sentence("there is no XML version ").Name(version).Say(kNothingIsRead);
}

Sentence BadDocumentType(const std::string& name)
{
    return Sentence("the document type cannot be called ").Name(name).Say(kNothingIsRead);
}

std::string HexNumber(unsigned char byte)
{
    char number[sizeof "0xFF"];
    std::snprintf(number, sizeof number, "0x%02X", static_cast<unsigned>(byte));
    return number;
}

Sentence BadByte(const std::string& number, const std::string& encoding)
{
    Sentence sentence = Sentence("the byte ").Say(number).Say(" is not ").Say(encoding);
    if (encoding == "UTF-8" || encoding == "US-ASCII")
        sentence.Say("; is the document ISO-8859-1 or windows-1252? Then say so: encoding=\"...\"");
    return sentence.Say(kNothingIsRead);
}

Sentence NeedsOutside(const std::string& target)
{
    return Sentence("the document needs ")
        .Name(target)
        .Say(", which is no file in or below its own folder")
        .Say(kNothingIsRead);
}

Sentence ExpandsTooFar()
{
    return Sentence("the document expands beyond what is read").Say(kNothingIsRead);
}

Sentence WrongRoot(const std::string& name)
{
    return Sentence("the root element is ").Name(name).Say(", not \"Model\"").Say(kNothingIsRead);
}

Sentence RefersOutside(const std::string& entity, const std::string& target)
{
    Sentence sentence = entity.empty() ? "the document type" : Sentence("the entity ").Name(entity);
    return sentence.Say(" refers to ").Name(target).Say(", which the reader fetches when it needs it");
}

} // namespace tal::message
