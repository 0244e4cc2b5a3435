#include "TalAttributeSchemaHost/check/FindingMessages.h"

#include <algorithm>
#include <cstdio>

#include "TalAttributeSchemaReader/format/FolderDepth.h"

namespace tal {

Sentence& Sentence::Say(std::string_view words)
{
    text += words;
    return *this;
}

Sentence& Sentence::Name(std::string_view value)
{
    values.push_back({text.size() + 1, value.size()});
    text.append(1, '"').append(value).append(1, '"');
    return *this;
}

Sentence& Sentence::LineToCome()
{
    m_lineAt = text.size();
    return *this;
}

void Sentence::PutLine(std::size_t line)
{
    Insert(m_lineAt, std::to_string(line));
}

Sentence& Sentence::MoreToCome()
{
    m_moreAt = text.size();
    return *this;
}

void Sentence::PutMore(std::string_view words)
{
    Insert(std::min(m_moreAt, text.size()), words);
}

void Sentence::Insert(std::size_t position, std::string_view words)
{
    text.insert(position, words);
    for (Finding::Value& value : values)
        value.begin += value.begin >= position ? words.size() : 0;
}

namespace message {

namespace {

Sentence Named(std::string_view value)
{
    return Sentence().Name(value);
}

Sentence& SayDidYouMean(Sentence& sentence, const std::string& suggestion)
{
    return suggestion.empty() ? sentence : sentence.Say("; did you mean ").Name(suggestion).Say("?");
}

const char* NameOf(Definition kind)
{
    switch (kind) {
    case Definition::Attribute:
        return "attribute definition";
    case Definition::File:
        return "file kind";
    case Definition::Group:
        return "attribute group";
    case Definition::Entity:
        return "entity";
    case Definition::None:
        break;
    }
    return "";
}

Sentence& SayNames(Sentence& sentence, const std::vector<std::string>& names, const char* last)
{
    for (std::size_t i = 0; i < names.size(); ++i)
        sentence.Say(i == 0 ? "" : i + 1 == names.size() ? last : ", ").Name(names[i]);
    return sentence;
}

constexpr std::size_t kFewAttributes = 5;
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

Sentence EntityContent(const std::string& element, const std::string& entity)
{
    return Named(element)
        .Say(" is skipped with everything in it")
        .MoreToCome()
        .Say(": it comes out of the entity ")
        .Name(entity);
}

Sentence TextIsSkipped(const std::string& element)
{
    return Sentence("the text in ").Name(element).Say(" is skipped: values are attributes");
}

Sentence UnknownElement(const std::string& name, const std::string& suggestion)
{
    Sentence sentence =
        Sentence("unknown element ").Name(name).Say(" is skipped with everything in it").MoreToCome();
    return SayDidYouMean(sentence, suggestion);
}

Sentence ElementCase(const std::string& name, const std::string& suggestion)
{
    Sentence sentence = Sentence("element ")
                            .Name(name)
                            .Say(" is skipped with everything in it, for letter case counts")
                            .MoreToCome();
    return SayDidYouMean(sentence, suggestion);
}

Sentence MisplacedElement(const std::string& name, const std::vector<std::string>& parents,
                          const std::string& suggestion)
{
    Sentence sentence = Sentence("element ").Name(name).Say(" is skipped here with everything in it");
    sentence.MoreToCome().Say("; it belongs in ");
    if (parents.front().empty())
        return sentence.Say("the place of the root");
    return SayDidYouMean(SayNames(sentence, parents, " or "), suggestion);
}

Sentence FolderTooDeep()
{
    return Sentence("the folder is left out with everything in it: only ")
        .Say(std::to_string(kMaxFolderDepth))
        .Say(" levels are read");
}

Sentence MergedElement(const std::string& name, const std::string& attribute)
{
    if (attribute.empty())
        return Named(name).Say(" is read like more of the first one, and a rewrite makes one of them");
    return Named(name)
        .Say(" stands here again: its ")
        .Name(attribute)
        .Say(" takes the place of the one before, and a rewrite makes one of them");
}

Sentence ElementNotWritten(const std::string& name)
{
    return Sentence("a rewrite leaves ").Name(name).Say(" out with everything in it");
}

Sentence WrittenForAnotherType(const std::string& name, const std::string& type, const std::string& actual)
{
    return Sentence("a rewrite leaves ")
        .Name(name)
        .Say(" out: it is written for the type ")
        .Name(type)
        .Say(" only, and this is ")
        .Name(actual);
}

Sentence ContentIgnored(const std::string& name, bool withAttributes)
{
    return Sentence(withAttributes ? "the attributes and the content of " : "the content of ")
        .Name(name)
        .Say(withAttributes ? " are" : " is")
        .Say(" ignored; a rewrite leaves it empty");
}

Sentence ContentNotRead(const std::string& name)
{
    return Sentence("the content of ").Name(name).Say(" is not read: the element has no attributes");
}

Sentence NoElementInside(const std::string& name)
{
    return Named(name).Say(" is left out by a rewrite: there is no element in it");
}

Sentence NoAttributes(const std::string& name)
{
    return Named(name).Say(" is skipped: it has no attributes");
}

Sentence MissingAttribute(const std::string& element, const std::string& name)
{
    return Named(element).Say(" is skipped: it has no attribute ").Name(name);
}

Sentence EmptyAttribute(const std::string& element, const std::string& name)
{
    return Named(element).Say(" is not read: its attribute ").Name(name).Say(" is empty");
}

Sentence UnknownAttribute(const std::string& element, const std::string& name, const std::string& suggestion,
                          const std::vector<std::string>& read)
{
    Sentence sentence = Sentence("unknown attribute ").Name(name).Say(" is skipped");
    if (!suggestion.empty() || read.size() > kFewAttributes)
        return SayDidYouMean(sentence, suggestion);
    sentence.Say("; ").Name(element).Say(read.empty() ? " has no attributes" : " has ");
    return SayNames(sentence, read, " and ");
}

Sentence AttributeCase(const std::string& name, const std::string& suggestion)
{
    Sentence sentence = Sentence("attribute ").Name(name).Say(" is skipped, for letter case counts");
    return SayDidYouMean(sentence, suggestion);
}

Sentence SupersededAttribute(const std::string& name, const std::string& readAs)
{
    return Sentence("attribute ")
        .Name(name)
        .Say(" is skipped: another spelling of ")
        .Name(readAs)
        .Say(" comes before it");
}

Sentence NamespaceAttribute(const std::string& name)
{
    return Sentence("attribute ")
        .Name(name)
        .Say(" is no part of the format; the reader skips it and a rewrite leaves it out");
}

Sentence RenamedAttribute(const std::string& name, const std::string& readAs)
{
    return Named(name).Say(" is read as ").Name(readAs).Say(", and a rewrite spells it so");
}

Sentence AttributeNotWritten(const std::string& name)
{
    return Named(name).Say(" is read, but a rewrite puts the value under another name, which is not read");
}

Sentence AttributeNotRead(const std::string& name, const std::string& written, const std::string& suggestion)
{
    Sentence sentence = Named(name).Say(" is not read; a rewrite sets it to ").Name(written);
    return SayDidYouMean(sentence, suggestion);
}

Sentence UnwritableCharacter(const std::string& name)
{
    return Sentence("a rewrite puts \"?\" for a character in the value of ").Name(name);
}

Sentence OutsideCodePage(unsigned codePage, const std::string& characters, const std::string& name)
{
    return Sentence("a host with the code page ")
        .Say(std::to_string(codePage))
        .Say(" writes \"?\" for each of ")
        .Name(characters)
        .Say(" in the value of ")
        .Name(name);
}

Sentence BadFlag(const std::string& value, const std::string& name, Match flag, const std::string& suggestion)
{
    Sentence sentence = Sentence("the value ").Name(value).Say(" of ").Name(name);
    sentence.Say(" counts as No: the flag is Yes or No");
    sentence.Say(flag == Match::Exact ? ", in exactly these letters" : "");
    return SayDidYouMean(sentence, suggestion);
}

Sentence StaleSuppression(const std::string& identifier)
{
    return Sentence("the comment suppresses no ").Name(identifier).Say(": there is none where it counts");
}

Sentence UnknownSuppression(const std::string& what, const std::string& suggestion)
{
    Sentence sentence = Sentence("the comment asks for ").Name(what).Say(", which does not exist");
    return SayDidYouMean(sentence, suggestion);
}

Sentence UnknownIdentifier(const std::string& identifier, const std::string& suggestion)
{
    Sentence sentence =
        Sentence("the comment asks to suppress ").Name(identifier).Say(", which is no finding that can be");
    return SayDidYouMean(sentence, suggestion);
}

Sentence DefinedTwice(Definition kind, const std::string& id)
{
    return Sentence("another ")
        .Say(NameOf(kind))
        .Say(kind == Definition::Entity ? " has the type " : " has the ID ")
        .Name(id)
        .Say(" already, in line ")
        .LineToCome()
        .Say("; the reader keeps both");
}

Sentence NamesNothing(const std::string& attribute, Definition kind, const std::string& id,
                      const std::string& suggestion)
{
    Sentence sentence = Named(attribute).Say(" names no ").Say(NameOf(kind));
    sentence.Say(": there is none with the ID ").Name(id).Say("; the reader keeps it unchecked");
    return SayDidYouMean(sentence, suggestion);
}

Sentence NamesHidden(const std::string& attribute, Definition kind, const std::string& id)
{
    return Named(attribute)
        .Say(" names no ")
        .Say(NameOf(kind))
        .Say(": ")
        .Name(id)
        .Say(" is defined in line ")
        .LineToCome()
        .Say(", but inside an element that is skipped; the reader keeps it unchecked");
}

std::string ReferencesInto(std::size_t number)
{
    return ", and " + std::to_string(number) + " references into it name nothing";
}

} // namespace message

} // namespace tal
