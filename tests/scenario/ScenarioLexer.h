#pragma once

#include <string>
#include <vector>

namespace brelk::scenario {

// One word of a scenario line; a quoted string keeps its unescaped bytes and
// is told apart from a bare word.
struct Token {
    std::string text;
    bool quoted = false;
};

// Splits a line into words and strings. Strings take the escapes \" \\ \r \n
// \t and \xHH. Throws std::runtime_error on an unterminated string or a bad escape.
std::vector<Token> tokenize(const std::string& line);

// A string as the scenario language writes it, between quotes, with escapes.
std::string quote(const std::string& s);

}  // namespace brelk::scenario
