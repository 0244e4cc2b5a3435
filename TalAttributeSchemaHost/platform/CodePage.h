// What a code page of Windows holds.
#pragma once

namespace tal {

/// A code page that can be the narrow one of a host on Windows, by its number.
class CodePage
{
public:
    /// Throws `std::system_error` when the system does not know the number.
    explicit CodePage(unsigned number);
    ~CodePage();
    CodePage(const CodePage&) = delete;
    CodePage& operator=(const CodePage&) = delete;

    bool Holds(char32_t codePoint) const;
    unsigned Number() const { return m_number; }

private:
    unsigned m_number;
    void* m_converter = nullptr; // the system's, where it has such a thing
};

} // namespace tal
