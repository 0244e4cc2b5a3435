// Every schema document in the repository.
#pragma once

#include <algorithm>
#include <filesystem>
#include <vector>

inline std::vector<std::filesystem::path> DocumentsOfTheRepository()
{
    std::vector<std::filesystem::path> documents;
    for (const char* folder : {"examples", "tests"}) {
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(std::filesystem::path(PROJECT_ROOT) / folder)) {
            if (entry.path().extension() == ".xml")
                documents.push_back(entry.path());
        }
    }
    std::sort(documents.begin(), documents.end());
    return documents;
}
