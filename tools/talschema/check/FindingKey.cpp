#include "tools/talschema/check/FindingKey.h"

#include <cstdint>
#include <string_view>

std::string PathOfNames(const std::string& path)
{
    std::string stripped;
    bool inNumber = false;
    for (const char character : path) {
        inNumber = inNumber || character == '[';
        if (!inNumber)
            stripped += character;
        inNumber = inNumber && character != ']';
    }
    return stripped;
}

std::string Fingerprints::Next(const tal::Finding& finding)
{
    std::string key = RuleOf(finding.id).identifier;
    key.append(1, '\0').append(finding.identity).append(1, '\0').append(finding.subject);
    std::uint64_t hash = 0xCBF29CE484222325; // FNV-1a: the same on every system
    for (const char character : key)
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3;
    std::string text;
    for (int shift = 60; shift >= 0; shift -= 4)
        text += "0123456789abcdef"[(hash >> static_cast<unsigned>(shift)) & 15];
    const int number = ++m_counts[text];
    return text + ":" + std::to_string(number);
}
