// How every builder walks what the model holds.
#pragma once

#include <cstddef>

#include "TalAttributeSchemaReader/model/genutl/GuList.h"
#include "TalAttributeSchemaReader/model/genutl/GuStringArray.h"

/// Calls `visit(T*)` for every entry of a list that holds `T`, from head to tail; null entries are skipped.
template <class T, class Pointer, class Visit>
void ForEachObject(const CGTList<Pointer>& list, Visit&& visit)
{
    for (const Pointer object : list) {
        if (object)
            visit(static_cast<T*>(object));
    }
}

/// A null list counts as an empty one.
template <class T, class Pointer, class Visit>
void ForEachObject(const CGTList<Pointer>* list, Visit&& visit)
{
    if (list)
        ForEachObject<T>(*list, visit);
}

/// The entry, or an empty string behind the end: parallel arrays of a model may differ in length.
inline GuString EntryOrEmpty(const GuStringArray& array, std::size_t index)
{
    return index < array.GetSize() ? array[index] : GuString();
}
