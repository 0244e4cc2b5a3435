#include "TalAttributeSchemaReader/model/CCreationOption.h"

void CCreationOption::SetReader(GuString name, GuString script, GuString value)
{
    m_readers.push_back({std::move(name), std::move(script), std::move(value)});
}

void CCreationOption::GetAllReaders(GuTemplateArray<GuString, GuCRTAllocator>& names,
                                    GuTemplateArray<GuString, GuCRTAllocator>& scripts,
                                    GuTemplateArray<GuString, GuCRTAllocator>& values) const
{
    names = scripts = values = {};
    for (const Reader& reader : m_readers) {
        names.Add(reader.name);
        scripts.Add(reader.script);
        values.Add(reader.value);
    }
}
