// What the system says of standard input and output.
#pragma once

#include <system_error>

/// While it lives, bytes pass unchanged between the streams and whoever is at the other end, and a console
/// takes them for UTF-8 with escape sequences.
class Console
{
public:
    Console();
    ~Console(); // NOLINT(performance-trivially-destructible): it has something to do on Windows
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

private:
    // As the console was; 0 for none.
    [[maybe_unused]] unsigned m_codePage = 0;
    [[maybe_unused]] unsigned long m_outputMode = 0;
};

/// True when standard output is a terminal that understands escape sequences.
bool IsTerminal();
/// The same of the standard error stream.
bool ErrorsGoToTerminal();

/// What keeps standard input from being read, if anything does.
std::error_code StateOfInput();
