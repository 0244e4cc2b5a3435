#include "TalAttributeSchemaHost/findings/FindingExplanations.h"

#include <algorithm>
#include <iterator>

namespace tal {

namespace {

// Examples are whole documents, so that a test can check them.
constexpr FindingExplanation kExplanations[] = {
    {FindingId::UnreadableFile, "The file cannot be opened or read, so nothing is known about the document.",
     nullptr, "Look at the name, the permissions and the disk; the message has the system's reason."},
    {FindingId::SystemFailure,
     "The check itself came to an end: memory ran out, the XML library did not start, or the "
     "system does not know a code page. It says nothing about the document.",
     nullptr, "Try again with more memory, or with another code page."},
    {FindingId::NotWellFormed,
     "The text breaks the rules of XML, so the reader gives up and reads nothing at all.",
     R"(<Model>
  <Storage>
</Model>)",
     "Go to the place of the finding; a tag that is not closed is often the cause. Where the "
     "parser gave up may be a little behind the mistake."},
    {FindingId::InvalidByte,
     "A byte means nothing in the encoding that the document declares (UTF-8 when it declares "
     "none), so nothing is read.",
     nullptr,
     "Save the document in UTF-8, or declare its real encoding: <?xml version=\"1.0\" "
     "encoding=\"windows-1252\"?>."},
    {FindingId::UnsupportedVersion,
     "The document declares a version of XML that does not exist, so nothing is read.",
     R"(<?xml version="1.2"?>
<Model/>)",
     "Declare version 1.0."},
    {FindingId::NotValid,
     "The document has a document type (DTD) and does not keep to it, so nothing is read.",
     R"(<!DOCTYPE Model [<!ELEMENT Model EMPTY>]>
<Model><Storage/></Model>)",
     "Correct the document type, or take it out: the format needs none."},
    {FindingId::ParserWarning, "The XML parser warns, which counts like an error: nothing is read.",
     R"(<!DOCTYPE Model [<!ELEMENT Model ANY><!ATTLIST Model a CDATA #IMPLIED>
<!ATTLIST Model a CDATA #IMPLIED>]>
<Model/>)",
     "Remove what the parser warns about; it is always in the document type."},
    {FindingId::OutsideFolder,
     "The document needs a file outside of its own folder, or the network. Checks do not follow "
     "there, and so nothing is read; the exported functions would follow.",
     R"(<!DOCTYPE Model SYSTEM "http://localhost/model.dtd">
<Model/>)",
     "Put the file beside the document, or allow it with --allow-external if you trust the "
     "document."},
    {FindingId::Expansion,
     "Entities or default values make the document many times as large as its file, as in an "
     "attack on a parser, so nothing is read.",
     nullptr, "Write out what the entities stand for."},
    {FindingId::WrongRoot,
     "The root element is not \"Model\", so this is no attribute schema and nothing is read.", R"(<Schema/>)",
     "Check that this is the right file; letter case counts."},
    {FindingId::UnknownElement,
     "The reader knows no element of this name and skips it with everything in it. References to "
     "what is defined in it name nothing.",
     R"(<Model>
  <Storag><StorageType Value="Local"/></Storag>
</Model>)",
     "Correct the name, or remove the element."},
    {FindingId::ElementCase,
     "Names of elements count letter case, so the reader skips the element with everything in it.",
     R"(<Model>
  <storage/>
</Model>)",
     "Write the name in the letters that the message suggests."},
    {FindingId::MisplacedElement,
     "The format knows the element, but not in this place, so the reader skips it with everything "
     "in it.",
     R"(<Model><AttributeDefinition><Attributes>
  <Storage/>
</Attributes></AttributeDefinition></Model>)",
     "Move the element to where it belongs, or rename it if another one was meant."},
    {FindingId::EntityContent,
     "Elements that come out of an entity are passed over, because the reader does not follow "
     "references between elements.",
     R"(<!DOCTYPE Model [<!ELEMENT Model ANY><!ELEMENT Storage EMPTY>
<!ENTITY part '<Storage/>'>]>
<Model>&part;</Model>)",
     "Write the elements where the reference stands."},
    {FindingId::UnknownAttribute, "The reader knows no attribute of this name in this element and skips it.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS" Lable="Mass"/>
</Attributes></AttributeDefinition></Model>)",
     "Correct the name, or remove the attribute."},
    {FindingId::AttributeCase,
     "Names of attributes count letter case here, so the reader skips the attribute.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS" label="Mass"/>
</Attributes></AttributeDefinition></Model>)",
     "Write the name in the letters that the message suggests."},
    {FindingId::SupersededAttribute,
     "The attribute stands there twice in different letter case; the reader takes one of them.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS"><DataGenerator>
    <Type Name="Python" name="VistaDb"/>
  </DataGenerator></Attribute>
</Attributes></AttributeDefinition></Model>)",
     "Remove the one that is not meant."},
    {FindingId::MissingAttribute, "Without this attribute the element says nothing, so the reader skips it.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS"/>
</Attributes><Files>
  <File ID="F_CAD"><AttributeSequence><Attribute/></AttributeSequence></File>
</Files></AttributeDefinition></Model>)",
     "Add the attribute, or remove the element."},
    {FindingId::ReaderWithoutAttributes, "A reader of a creation option without any attribute is skipped.",
     R"(<Model><Entities>
  <Entity Type="Bracket"><Rules><Create><Option Name="Source"><Readers>
    <Reader/>
  </Readers></Option></Create></Rules></Entity>
</Entities></Model>)",
     "Give it a Name, a Script or a Value, or remove it."},
    {FindingId::FlagValue,
     "A flag is Yes or No; every other value counts as No. Displayable and Editable want exactly "
     "these letters.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS" Displayable="true"/>
</Attributes></AttributeDefinition></Model>)",
     "Write Yes or No."},
    {FindingId::TextContent, "Values are attributes; text between the tags is skipped.",
     R"(<Model><Storage>
  <StorageType>Local</StorageType>
</Storage></Model>)",
     "Move the text into the attribute, or into a comment."},
    {FindingId::CodePage,
     "A host on Windows with the code page of --code-page cannot write this character and puts a "
     "question mark for it.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS" Label="風"/>
</Attributes></AttributeDefinition></Model>)",
     "Replace the character, or let the host use UTF-8."},
    {FindingId::UnknownReference,
     "The reference names an identifier that nothing has. The reader keeps it unchecked, and the "
     "application finds nothing there.",
     R"(<Model><AttributeDefinition><AttributeGroups>
  <AttributeGroup ID="G_SIZE"><Attribute IDRef="A_LENGTH"/></AttributeGroup>
</AttributeGroups></AttributeDefinition></Model>)",
     "Correct the reference, or define what it names. If it is defined in an element that is "
     "skipped, repair that one."},
    {FindingId::DuplicateId,
     "Two definitions of one kind share an identifier. The reader keeps both, and a reference may "
     "mean either.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS" Label="Mass"/>
  <Attribute ID="A_MASS" Label="Weight"/>
</Attributes></AttributeDefinition></Model>)",
     "Give one of them another identifier, and correct the references to it."},
    {FindingId::DuplicateType, "Two entities have the same type. The reader keeps both.",
     R"(<Model><Entities>
  <Entity Type="Bracket"/>
  <Entity Type="Bracket"/>
</Entities></Model>)",
     "Merge them, or give one of them another type."},
    {FindingId::ExternalReference,
     "The document type or an entity refers to a file or to the network, which the exported "
     "functions fetch when they need it.",
     R"(<!DOCTYPE Model [<!ELEMENT Model ANY><!ENTITY part SYSTEM "part.xml">]>
<Model/>)",
     "Remove the reference: the format needs neither a document type nor entities."},
    {FindingId::UseInComparison,
     "The flag is read as UseInComparision and written as UseInComparison, so a rewrite loses it "
     "at the next read; under the second name it is not read at all.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS" UseInComparision="Yes"/>
</Attributes></AttributeDefinition></Model>)",
     "Use the name UseInComparision, and edit the document rather than rewrite it."},
    {FindingId::CreationType,
     "The creation type is read from Name and written as CreationType, so a rewrite loses it at "
     "the next read; under the second name it is not read at all.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS"><DataGenerator>
    <Type Name="VistaDb"><CreationType Name="Always"/></Type>
  </DataGenerator></Attribute>
</Attributes></AttributeDefinition></Model>)",
     "Use the attribute Name, and edit the document rather than rewrite it."},
    {FindingId::GroupGenerator, "The generator of an attribute group is read, but a rewrite leaves it out.",
     R"(<Model><AttributeDefinition><AttributeGroups>
  <AttributeGroup ID="G_SIZE"><DataGenerator><Type Name="Python"/></DataGenerator></AttributeGroup>
</AttributeGroups></AttributeDefinition></Model>)",
     "Put generators on attributes, or edit the document rather than rewrite it."},
    {FindingId::EmptyGenerator, "A generator without any element inside is left out by a rewrite.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS"><DataGenerator/></Attribute>
</Attributes></AttributeDefinition></Model>)",
     "Give it a Type, or remove it."},
    {FindingId::OtherType,
     "The element is written for another type of entity or generator only, so a rewrite leaves it "
     "out here.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS"><DataGenerator>
    <Type Name="Python"><EntityName Name="Steel"/></Type>
  </DataGenerator></Attribute>
</Attributes></AttributeDefinition></Model>)",
     "Correct the type, or remove the element."},
    {FindingId::EmptyReference, "A file kind's reference without an ID is not read.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS"/>
</Attributes><Files>
  <File ID="F_CAD"><AttributeSequence><Attribute IDRef=""/></AttributeSequence></File>
</Files></AttributeDefinition></Model>)",
     "Name an attribute definition, or remove the reference."},
    {FindingId::EmptyResource, "A resource without a name is not read.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS"><DataGenerator>
    <Type Name="VistaDb"><Resources><Resource Name=""/></Resources></Type>
  </DataGenerator></Attribute>
</Attributes></AttributeDefinition></Model>)",
     "Name the resource, or remove it."},
    {FindingId::Filters,
     "Filters are accepted and forgotten: nothing of them is in the model, and a rewrite leaves "
     "them out.",
     R"(<Model><Entities>
  <Entity Type="Bracket"><Rules><Create><Filters><Filter/></Filters></Create></Rules></Entity>
</Entities></Model>)",
     "Keep them only for other programs, and edit the document rather than rewrite it."},
    {FindingId::IgnoredContent,
     "What stands in Update, Delete or LoadCaseGroups is ignored, and a rewrite leaves it out.",
     R"(<Model><Entities>
  <Entity Type="Bracket"><Rules><Update><Rule/></Update></Rules></Entity>
</Entities></Model>)",
     "Keep it only for other programs, and edit the document rather than rewrite it."},
    {FindingId::AssemblyScript, "The script of an assembly is not read, and written empty.",
     R"(<Model><Entities>
  <Entity Type="LoadCase"><Rules><Create><Children>
    <Assembly Value="Hub" Script="hub.py"/>
  </Children></Create></Rules></Entity>
</Entities></Model>)",
     "Put the script on the entity or on a reader."},
    {FindingId::FolderWithoutAttributes, "Nothing in a folder without attributes is read.",
     R"(<Model><Entities>
  <Entity Type="Iteration"><Rules><Create><LoadCaseTemplates><Condition>
    <AttributeFolder><AttributeFolder Name="Loads"/></AttributeFolder>
  </Condition></LoadCaseTemplates></Create></Rules></Entity>
</Entities></Model>)",
     "Give every folder a Name."},
    {FindingId::FolderTooDeep,
     "Folders are read down to 1,000 levels; deeper ones are left out with everything in them.", nullptr,
     "Use fewer levels."},
    {FindingId::MergedElement,
     "Of such an element one is written only. A second one is read like more of the first, and "
     "its values take the place of the earlier ones.",
     R"(<Model>
  <Storage/>
  <Storage/>
</Model>)",
     "Merge the two by hand, so that the document says what is read."},
    {FindingId::RenamedAttribute,
     "In a generator the letter case of attribute names does not matter; a rewrite spells this "
     "one otherwise.",
     R"(<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS"><DataGenerator>
    <Type name="Python"/>
  </DataGenerator></Attribute>
</Attributes></AttributeDefinition></Model>)",
     "Nothing has to be done; the spelling of the message is the usual one."},
    {FindingId::NamespaceAttribute,
     "The attribute belongs to XML, not to the format. The reader skips it, and a rewrite leaves "
     "it out.",
     R"(<Model xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"/>)",
     "Nothing has to be done, if a rewrite may lose it. An XML catalog tells an editor the schema "
     "without it."},
    {FindingId::UnwritableCharacter,
     "No XML 1.0 document can carry this character, so a rewrite puts a question mark for it.",
     R"(<?xml version="1.1"?>
<Model><AttributeDefinition><Attributes>
  <Attribute ID="A_MASS" Label="&#1;"/>
</Attributes></AttributeDefinition></Model>)",
     "Remove the character."},
    {FindingId::StaleSuppression,
     "The comment asks not to be told of a finding that is not there, in the next line or up to the end of "
     "the "
     "element around it.",
     R"(<Model>
  <!-- talschema-disable-next-line unknown-element: for a plug-in -->
  <Storage/>
</Model>)",
     "Take the identifier out of the comment, or the comment as a whole; it would hide a later mistake."},
    {FindingId::UnknownSuppression,
     "The comment looks like one that suppresses findings, but has a word or an identifier that nobody "
     "knows.",
     R"(<Model>
  <!-- talschema-disable unknown-elment: for a plug-in -->
  <Storage/>
</Model>)",
     "Correct the word or the identifier; without arguments, talschema explain lists all identifiers."},
};

} // namespace

const FindingExplanation* ExplanationOf(FindingId id)
{
    const auto* const found =
        std::find_if(std::begin(kExplanations), std::end(kExplanations),
                     [&](const FindingExplanation& explanation) { return explanation.id == id; });
    return found == std::end(kExplanations) ? nullptr : found;
}

} // namespace tal
