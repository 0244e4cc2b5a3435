#include "DocumentGenerator.h"

#include <algorithm>
#include <initializer_list>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

// What one block of definitions and entities takes on average.
constexpr std::size_t kBlockBytes = 7400;

class Generator
{
public:
    Generator(std::ostream& stream, std::size_t blocks) : m_stream(stream), m_blocks(blocks) {}

    void Model()
    {
        m_stream << R"(<?xml version="1.0" encoding="UTF-8" standalone="no" ?>)"
                 << "<Model>";
        Element("Storage", {}, [&] {
            Element("WorkingDirectory", {{"Value", "/data/turbine/work"}});
            Element("SharedLocation", {{"Value", "/data/turbine/gemeinsame Prüfstände"}});
            Element("StorageType", {{"Value", "FileSystem"}});
        });
        Element("AttributeDefinition", {}, [&] {
            Element("Attributes", {}, [&] { Repeat(10 * m_blocks, [&](auto i) { Attribute(i); }); });
            Element("Files", {}, [&] { Repeat(2 * m_blocks, [&](auto i) { File(i); }); });
            Element("AttributeGroups", {}, [&] { Repeat(m_blocks, [&](auto i) { Group(i); }); });
        });
        Element("Entities", {}, [&] { Repeat(2 * m_blocks, [&](auto i) { Entity(i); }); });
        m_stream << "</Model>";
    }

private:
    using Attributes = std::initializer_list<std::pair<const char*, std::string>>;

    void StartTag(const char* name, Attributes attributes)
    {
        m_stream << "\n<" << name;
        for (const auto& [key, value] : attributes)
            m_stream << ' ' << key << "=\"" << value << '"';
    }

    void Element(const char* name, Attributes attributes)
    {
        StartTag(name, attributes);
        m_stream << "/>";
    }

    template <class Content>
    void Element(const char* name, Attributes attributes, Content&& content)
    {
        StartTag(name, attributes);
        m_stream << '>';
        content();
        m_stream << "</" << name << '>';
    }

    template <class Visit>
    static void Repeat(std::size_t count, Visit&& visit)
    {
        for (std::size_t i = 0; i < count; ++i)
            visit(i);
    }

    // The distributions of the standard library differ between implementations, so none is used.
    std::size_t Random(std::size_t bound) { return m_random() % bound; }
    std::string Number(std::size_t bound) { return std::to_string(Random(bound)); }
    std::string Flag() { return Random(2) ? "Yes" : "No"; }

    std::string Pick(std::initializer_list<const char*> texts) { return texts.begin()[Random(texts.size())]; }

    // About one label in six is not ASCII.
    std::string Label()
    {
        std::string label = Pick({"Rotor diameter", "Hub height", "Bracket thickness", "Blade length",
                                  "Test temperature", "Rated power", "Tower mass", "Bolt torque", "Nabenhöhe",
                                  "Spannung σ", "Wind speed", "Gearbox ratio", "Yaw rate", "Cut-out speed",
                                  "Bearing clearance", "試験温度", "Material grade", "Heat flux"});
        return label + ' ' + Number(1000);
    }
    std::string Reference(const char* prefix, std::size_t count)
    {
        return prefix + std::to_string(Random(count));
    }
    std::string AttributeReference() { return Reference("attribute-", 10 * m_blocks); }

    void References(const char* name, const char* prefix, std::size_t definitions, std::size_t count)
    {
        Repeat(count, [&](auto) { Element(name, {{"IDRef", Reference(prefix, definitions)}}); });
    }
    void AttributeReferences(std::size_t count)
    {
        References("Attribute", "attribute-", 10 * m_blocks, count);
    }

    void Attribute(std::size_t index)
    {
        const std::string id = "attribute-" + std::to_string(index);
        const char* comparison = index % 4 ? "UseInComparison" : "UseInComparision";
        StartTag("Attribute", {{"ID", id},
                               {"Label", Label()},
                               {"Value", Number(100000)},
                               {"min", Random(3) ? Number(10) : ""},
                               {"max", Random(3) ? Number(1000000) : ""},
                               {"Displayable", Flag()},
                               {"Editable", Flag()},
                               {"DataType", Pick({"Double", "Integer", "String", "Boolean", "Date"})},
                               {comparison, Flag()},
                               {"OnChangeCreateVersion", Flag()}});
        if (index % 5 > 1) {
            m_stream << "/>";
            return;
        }
        m_stream << '>';
        DataGenerator(index % 5 == 0);
        m_stream << "</Attribute>";
    }

    void DataGenerator(bool python)
    {
        Element("DataGenerator", {}, [&] {
            if (python) {
                Element("Type", {{"Name", "Python"}}, [&] {
                    Element("ModuleName", {{"Name", "turbine.generators." + Number(50)}});
                    Element("FunctionName", {{"Name", "compute_" + Number(500)}});
                });
                return;
            }
            Element("Type", {{"Name", "VistaDb"}}, [&] {
                Element("EntityId", {{"Id", Number(100000)}});
                Element("EntityName", {{"Name", Label()}});
                Element("ClassName", {{"Name", Pick({"Rotor", "Nacelle", "Tower", "Bracket"})}});
                Element("CreationType", {{"Name", "Reference"}});
                Element("Resources", {}, [&] {
                    Repeat(2, [&](auto) {
                        Element("Resource", {{"Name", "results/run-" + Number(1000) + ".csv"}});
                    });
                });
            });
        });
    }

    void File(std::size_t index)
    {
        Element("File",
                {{"ID", "file-" + std::to_string(index)},
                 {"Name", Label()},
                 {"FileType", Pick({"Geometry", "Mesh", "Report"})},
                 {"OnChangeCreateVersion", Flag()}},
                [&] {
                    Repeat(2, [&](auto) {
                        Element("FileExtension", {{"Extension", Pick({"stp", "msh", "csv", "pdf", "txt"})}});
                    });
                    Element("AttributeSequence", {}, [&] { AttributeReferences(5); });
                });
    }

    void Group(std::size_t index)
    {
        Element("AttributeGroup", {{"ID", "group-" + std::to_string(index)}, {"Label", Label()}}, [&] {
            AttributeReferences(8);
            if (index % 4 == 0)
                DataGenerator(index % 8 == 0);
        });
    }

    void Entity(std::size_t index)
    {
        const bool loadCase = index % 10 == 3;
        const bool iteration = index % 10 == 7;
        const std::string type = loadCase    ? "LoadCase"
                                 : iteration ? "Iteration"
                                             : Pick({"WindTurbine", "Bracket", "ThermalTest"});
        Element("Entity", {{"Type", type}, {"Script", "scripts/create_" + Number(100) + ".py"}}, [&] {
            Element("Definition", {}, [&] {
                Element("FileSequence", {}, [&] { References("File", "file-", 2 * m_blocks, 3); });
                Element("AttributeSequence", {}, [&] { AttributeReferences(8); });
            });
            Rules([&] {
                Options();
                RuleElements();
                if (loadCase)
                    Element("Children", {}, [&] { Repeat(3, [&](auto) { Assembly(); }); });
                if (iteration)
                    Element("LoadCaseTemplates", {}, [&] { Repeat(3, [&](auto) { Condition(); }); });
                if (index % 10 == 0)
                    Filters();
            });
        });
    }

    template <class Content>
    void Rules(Content&& create)
    {
        Element("Rules", {}, [&] {
            Element("Create", {}, create);
            Element("Update", {});
            Element("Delete", {});
        });
    }

    void Options()
    {
        Repeat(2, [&](auto) {
            Element("Option", {{"Name", "Import " + Number(100)}, {"Value", Flag()}}, [&] {
                Element("Readers", {}, [&] {
                    Repeat(2, [&](auto) {
                        Element("Reader", {{"Name", Label()},
                                           {"Script", "readers/read_" + Number(100) + ".py"},
                                           {"Value", Pick({"stp", "msh", ""})}});
                    });
                });
            });
        });
    }

    void RuleElements()
    {
        Repeat(3, [&](auto) {
            Element("Rule", {{"Name", Pick({"Unique name", "Naming", "Limit"})}, {"Value", Number(100)}});
        });
    }

    void Assembly()
    {
        Element("Assembly", {{"AttributeIDRef", AttributeReference()}, {"Value", Label()}, {"Script", ""}},
                [&] {
                    Rules([&] {
                        Options();
                        Filters();
                        RuleElements();
                        Element("LoadCaseGroups", {});
                    });
                });
    }

    void Condition()
    {
        Element("Condition", {{"AttributeRef", AttributeReference()}, {"Value", Label()}},
                [&] { Repeat(2, [&](auto) { Folder(3); }); });
    }

    void Folder(int levels)
    {
        Element("AttributeFolder", {{"Name", Label()}}, [&] {
            AttributeReferences(4);
            if (levels > 1)
                Folder(levels - 1);
        });
    }

    void Filters()
    {
        Element("Filters", {}, [&] {
            Element("Filter", {}, [&] {
                Element("criteria", {});
                Element("SubFilter", {}, [&] { Element("criteria", {}); });
            });
        });
    }

    std::ostream& m_stream;
    std::size_t m_blocks;
    std::mt19937 m_random{1};
};

} // namespace

void GenerateDocument(std::ostream& stream, std::size_t bytes)
{
    Generator(stream, std::max<std::size_t>(1, bytes / kBlockBytes)).Model();
}
