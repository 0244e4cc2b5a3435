// The linked list and the array.
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "TalAttributeSchemaReader/model/genutl/CGTList.h"
#include "TalAttributeSchemaReader/model/genutl/GuStringArray.h"

namespace {

std::vector<int> Values(const CGTList<int*>& list)
{
    std::vector<int> values;
    for (const int* value : list)
        values.push_back(*value);
    return values;
}

TEST(CGTList, CopiesMovesAndSplices)
{
    int numbers[] = {1, 2, 3};
    CGTList<int*> list;
    EXPECT_EQ(list.GetHead(), nullptr);
    for (int& number : numbers)
        list.Add(&number);
    EXPECT_EQ(list.GetHead()->GetNext()->GetObject(), &numbers[1]);

    CGTList<int*> copy(list);
    EXPECT_EQ(Values(copy), (std::vector{1, 2, 3}));
    EXPECT_NE(copy.GetHead(), list.GetHead()) << "a copy has nodes of its own";
    copy.Splice(list);
    copy.Splice(list); // empty by now
    copy.Splice(copy);
    EXPECT_EQ(Values(copy), (std::vector{1, 2, 3, 1, 2, 3}));
    EXPECT_EQ(copy.GetCount(), 6u);
    EXPECT_EQ(list.GetCount(), 0u);
    list.Add(&numbers[2]);
    EXPECT_EQ(Values(list), std::vector{3}) << "a spliced list can be used again";

    copy = list;
    CGTList<int*> moved(std::move(copy));
    moved.Add(&numbers[0]);
    EXPECT_EQ(Values(moved), (std::vector{3, 1}));
    moved = CGTList<int*>();
    moved.Add(&numbers[1]);
    EXPECT_EQ(Values(moved), std::vector{2});

    EXPECT_EQ(moved.TakeFirst(), &numbers[1]);
    EXPECT_EQ(moved.GetCount(), 0u);
    moved.Add(&numbers[0]);
    EXPECT_EQ(Values(moved), std::vector{1}) << "an emptied list can be used again";
}

TEST(GuTemplateArray, CopiesItsValues)
{
    GuStringArray array;
    for (const char* text : {"hub", "", "nacelle"})
        array.Add(text);
    GuStringArray copy = array;
    copy[0] = "blade";
    EXPECT_EQ(array[0], GuString("hub"));
    EXPECT_EQ(copy.GetSize(), 3u);
    std::size_t count = 0;
    for (const GuString& value : copy)
        EXPECT_EQ(value, copy[count++]);
    EXPECT_EQ(count, 3u);
}

} // namespace
