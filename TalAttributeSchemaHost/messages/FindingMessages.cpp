#include "TalAttributeSchemaHost/messages/FindingMessages.h"

#include "TalAttributeSchemaReader/format/FolderDepth.h"

namespace tal::message {

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

} // namespace

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

} // namespace tal::message
