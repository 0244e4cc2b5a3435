#include "TalAttributeSchemaHost/compact/CompactDocument.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>

#include <xercesc/util/XMLChar.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

using namespace xercesc;

namespace tal {

namespace {

bool ComesBefore(const CompactAttribute& left, const CompactAttribute& right)
{
    const XMLCh* name = left.getName();
    const XMLCh* other = right.getName();
    while (*name && *name == *other) {
        ++name;
        ++other;
    }
    return *name < *other;
}

/// For UTF-16, the standard library compares unit by unit.
bool IsSame(XmlView left, XmlView right)
{
    return left.size() == right.size() &&
           std::memcmp(left.data(), right.data(), left.size() * sizeof(XMLCh)) == 0;
}

/// Names that are the same as a rule meet in one place.
std::size_t PlaceOf(XmlView name, std::size_t places)
{
    return name.empty() ? 0 : (name.size() * 8 + name.front() + std::size_t{name.back()} * 2) % places;
}

} // namespace

DOMNode* CompactSibling::Next() const
{
    return m_next == static_cast<DOMNode*>(m_owner) ? nullptr : m_next;
}

void CompactSibling::BeLast()
{
    m_next = m_owner;
}

DOMDocument* CompactText::getOwnerDocument() const
{
    return &Owner();
}

const XMLCh* CompactText::getNodeName() const
{
    constexpr static XMLCh name[] = {'#', 't', 'e', 'x', 't', 0};
    return name;
}

DOMNode* CompactAttributes::getNamedItem(const XMLCh* name) const
{
    CompactAttribute* const end = m_items + m_count;
    CompactAttribute* const found = std::find_if(m_items, end, [&](const CompactAttribute& attribute) {
        return XMLString::equals(attribute.getName(), name);
    });
    return found == end ? nullptr : found;
}

CompactElement::CompactElement(CompactDocument& owner, const XMLCh* name)
    : CompactSibling(owner), m_name(name)
{
}

DOMDocument* CompactElement::getOwnerDocument() const
{
    return &Owner();
}

DOMNode* CompactElement::appendChild(DOMNode* child)
{
    if (child->getOwnerDocument() != &Owner())
        throw DOMException(DOMException::WRONG_DOCUMENT_ERR);
    CompactSibling& sibling = child->getNodeType() == ELEMENT_NODE
                                  ? static_cast<CompactSibling&>(static_cast<CompactElement&>(*child))
                                  : static_cast<CompactText&>(*child);
    if (sibling.HasParent() || child == this)
        throw DOMException(DOMException::NOT_SUPPORTED_ERR);
    Append(*child, sibling);
    return child;
}

void CompactElement::Append(DOMNode& node, CompactSibling& sibling)
{
    if (m_last)
        m_last->PutBefore(node);
    else
        m_first = &node;
    sibling.BeLast();
    m_last = &sibling;
}

void CompactElement::setAttribute(const XMLCh* name, const XMLCh* value)
{
    CompactAttribute* const begin = m_attributes.m_items;
    CompactAttribute* const end = begin + m_attributes.m_count;
    const CompactAttribute attribute(Owner().InternChecked(name), Owner().CopyValue(value));
    CompactAttribute* const place = std::lower_bound(begin, end, attribute, ComesBefore);
    if (place != end && place->getName() == attribute.getName()) {
        *place = attribute;
        return;
    }
    const auto index = place - begin;
    MakeRoom();
    new (m_attributes.m_items + m_attributes.m_count) CompactAttribute(attribute);
    std::rotate(m_attributes.m_items + index, m_attributes.m_items + m_attributes.m_count,
                m_attributes.m_items + m_attributes.m_count + 1);
    ++m_attributes.m_count;
}

/// For one more attribute. As a rule, an element gets all of them before anything else is made.
void CompactElement::MakeRoom()
{
    const std::uint32_t count = m_attributes.m_count;
    if (count < m_attributes.m_capacity)
        return;
    if (count > 0 && Owner().m_nodes.Extend(m_attributes.m_items, count)) {
        ++m_attributes.m_capacity;
        return;
    }
    const CompactAttribute* const items = m_attributes.m_items;
    ReserveAttributes(count == 0 ? 1 : std::size_t{2} * count);
    std::uninitialized_copy(items, items + count, m_attributes.m_items);
}

void CompactElement::ReserveAttributes(std::size_t count)
{
    m_attributes.m_items = Owner().m_nodes.Allocate<CompactAttribute>(count);
    m_attributes.m_capacity = static_cast<std::uint32_t>(count);
}

void CompactElement::AddAttribute(XmlView name, XmlView value)
{
    CompactDocument& owner = Owner();
    new (m_attributes.m_items + m_attributes.m_count)
        CompactAttribute(owner.Intern(name), owner.CopyValue(value));
    ++m_attributes.m_count;
}

void CompactElement::SortAttributes()
{
    std::sort(m_attributes.m_items, m_attributes.m_items + m_attributes.m_count, ComesBefore);
}

const XMLCh* CompactDocument::getNodeName() const
{
    constexpr static XMLCh name[] = {'#', 'd', 'o', 'c', 'u', 'm', 'e', 'n', 't', 0};
    return name;
}

const XMLCh* CompactDocument::getXmlVersion() const
{
    return XMLUni::fgVersion1_0;
}

DOMElement* CompactDocument::createElement(const XMLCh* name)
{
    return new (m_nodes.Allocate<CompactElement>(1)) CompactElement(*this, InternChecked(name));
}

DOMText* CompactDocument::createTextNode(const XMLCh* text)
{
    const XMLCh* const units = CopyValue(text);
    return new (m_nodes.Allocate<CompactText>(1)) CompactText(*this, units);
}

CompactElement& CompactDocument::MakeElement(XmlView name)
{
    const XMLCh* const units = Intern(name);
    return *new (m_nodes.Allocate<CompactElement>(1)) CompactElement(*this, units);
}

const XMLCh* CompactDocument::Copy(XmlView text)
{
    XMLCh* const units = m_text.Allocate<XMLCh>(text.size() + 1);
    text.copy(units, text.size());
    units[text.size()] = 0;
    return units;
}

const XMLCh* CompactDocument::CopyValue(XmlView value)
{
    constexpr std::size_t longest = 8;
    if (value.size() > longest)
        return Copy(value);
    XmlView& recent = m_recentValues[PlaceOf(value, m_recentValues.size())];
    if (!recent.data() || !IsSame(recent, value))
        recent = {Copy(value), value.size()};
    return recent.data();
}

const XMLCh* CompactDocument::Intern(XmlView text)
{
    XmlView& recent = m_recent[PlaceOf(text, m_recent.size())];
    if (recent.data() && IsSame(recent, text))
        return recent.data();
    const auto known = m_interned.find(text);
    if (known == m_interned.end()) {
        recent = {Copy(text), text.size()};
        m_interned.insert(recent);
    } else {
        recent = *known;
    }
    return recent.data();
}

const XMLCh* CompactDocument::InternChecked(XmlView name)
{
    const XmlView& recent = m_recent[PlaceOf(name, m_recent.size())];
    if (recent.data() && IsSame(recent, name))
        return recent.data();
    if (!XMLChar1_0::isValidName(name.data(), name.size()))
        throw DOMException(DOMException::INVALID_CHARACTER_ERR);
    return Intern(name);
}

} // namespace tal
