// Documents with mistakes.
#pragma once

#include <cctype>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/tools/XmlElement.h"

/// How many documents a test mutates: what `TALSCHEMA_MUTATIONS` in the environment wants, or a few.
inline unsigned Mutations()
{
#ifdef TAL_SANITIZED
    constexpr unsigned rounds = 150;
#else
    constexpr unsigned rounds = 600;
#endif
    const char* const wanted = std::getenv("TALSCHEMA_MUTATIONS");
    return wanted ? static_cast<unsigned>(std::atoi(wanted)) : rounds;
}

/// Changes a document as people do by mistake.
class Mutator
{
public:
    Mutator(Element& root, unsigned seed) : m_root(root), m_random(seed) {}

    void Mutate()
    {
        for (unsigned rounds = 1 + Below(2); rounds > 0; --rounds) {
            Element& element = *Any(Elements());
            switch (Below(12)) {
            case 0:
                Take(element);
                break;
            case 1:
                Move(element);
                break;
            case 2:
                element.name = Any(Names());
                break;
            case 3:
                element.name = InAnotherCase(element.name);
                break;
            case 4:
                Any(Elements())->children.push_back(Element(element));
                break;
            case 5:
                ChangeAttribute(element, [&](const std::string& name) { return InAnotherCase(name); });
                break;
            case 6:
                ChangeAttribute(element, [&](const std::string&) { return Any(AttributeNames()); });
                break;
            case 8:
                element.name = Misspelt(element.name);
                break;
            case 9:
                ChangeAttribute(element, [&](const std::string& name) { return Misspelt(name); });
                break;
            case 10:
                if (!element.attributes.empty())
                    element.attributes[AttributeOf(element)] = Any(kFlags);
                break;
            case 7:
                element.attributes[Any(AttributeNames())] = Any(kValues);
                break;
            default:
                if (!element.attributes.empty())
                    element.attributes[AttributeOf(element)] = Any(kValues);
            }
        }
    }

private:
    const std::vector<std::string> kValues = {"",         "Yes",       "yes",    "No",      "no", "true",
                                              "LoadCase", "Iteration", "Python", "VISTADB", "A",  "a\001"};

    const std::vector<std::string> kFlags = {"yes", "TRUE", "1", "no", "false", "0", "Yess"};

    unsigned Below(std::size_t bound) { return static_cast<unsigned>(m_random() % bound); }
    template <class T>
    T Any(const std::vector<T>& choices)
    {
        return choices[Below(choices.size())];
    }

    std::vector<Element*> Elements()
    {
        std::vector<Element*> elements = {&m_root};
        for (std::size_t i = 0; i < elements.size(); ++i) {
            for (Element& child : elements[i]->children)
                elements.push_back(&child);
        }
        return elements;
    }
    std::vector<std::string> Names()
    {
        std::vector<std::string> names = {"Readers", "DataGenerator", "Assembly", "Filters", "Unknown"};
        for (const Element* element : Elements())
            names.push_back(element->name);
        return names;
    }
    std::vector<std::string> AttributeNames()
    {
        std::vector<std::string> names = {"IDRef", "name", "NAME", "UseInComparision", "xmlns", "unknown"};
        for (const Element* element : Elements()) {
            for (const auto& attribute : element->attributes)
                names.push_back(attribute.first);
        }
        return names;
    }
    std::string AttributeOf(const Element& element)
    {
        return std::next(element.attributes.begin(), Below(element.attributes.size()))->first;
    }

    std::string InAnotherCase(std::string name)
    {
        char& letter = name[Below(name.size())];
        const auto byte = static_cast<unsigned char>(letter);
        letter = static_cast<char>(std::isupper(byte) ? std::tolower(byte) : std::toupper(byte));
        return name;
    }

    std::string Misspelt(std::string name)
    {
        const unsigned place = Below(name.size());
        switch (Below(3)) {
        case 0:
            name.insert(place, 1, 'e');
            break;
        case 1:
            name[place] = 'a';
            break;
        default:
            if (name.size() > 1 && place > 0) // no name begins with a digit or is empty
                name.erase(place, 1);
        }
        return name;
    }

    template <class Change>
    void ChangeAttribute(Element& element, Change change)
    {
        if (element.attributes.empty())
            return;
        const std::string name = AttributeOf(element);
        const std::string value = element.attributes[name];
        element.attributes.erase(name);
        element.attributes[change(name)] = value;
    }

    std::optional<Element> Take(const Element& element)
    {
        for (Element* parent : Elements()) {
            for (auto child = parent->children.begin(); child != parent->children.end(); ++child) {
                if (&*child == &element) {
                    Element taken = std::move(*child);
                    parent->children.erase(child);
                    return taken;
                }
            }
        }
        return std::nullopt; // the root
    }
    void Move(const Element& element)
    {
        if (auto taken = Take(element)) {
            auto& children = Any(Elements())->children;
            children.insert(children.begin() + Below(children.size() + 1), std::move(*taken));
        }
    }

    Element& m_root;
    std::mt19937 m_random;
};
