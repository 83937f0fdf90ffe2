#include "ScenarioLexer.h"

#include <cctype>
#include <stdexcept>

namespace brelk::scenario {

namespace {

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

}  // namespace

std::vector<Token> tokenize(const std::string& line) {
    std::vector<Token> tokens;
    std::size_t i = 0;
    const std::size_t n = line.size();
    while (i < n) {
        if (line[i] == ' ' || line[i] == '\t') {
            ++i;
            continue;
        }
        Token t;
        if (line[i] == '"') {
            t.quoted = true;
            ++i;
            bool closed = false;
            while (i < n) {
                const char c = line[i++];
                if (c == '"') {
                    closed = true;
                    break;
                }
                if (c != '\\') {
                    t.text.push_back(c);
                    continue;
                }
                if (i >= n) break;
                const char e = line[i++];
                switch (e) {
                case '"': t.text.push_back('"'); break;
                case '\\': t.text.push_back('\\'); break;
                case 'r': t.text.push_back('\r'); break;
                case 'n': t.text.push_back('\n'); break;
                case 't': t.text.push_back('\t'); break;
                case 'x': {
                    const int hi = i < n ? hexDigit(line[i]) : -1;
                    const int lo = i + 1 < n ? hexDigit(line[i + 1]) : -1;
                    if (hi < 0 || lo < 0) throw std::runtime_error("bad \\x escape");
                    t.text.push_back(static_cast<char>(hi * 16 + lo));
                    i += 2;
                    break;
                }
                default: throw std::runtime_error(std::string("unknown escape \\") + e);
                }
            }
            if (!closed) throw std::runtime_error("unterminated string");
        } else {
            while (i < n && line[i] != ' ' && line[i] != '\t') t.text.push_back(line[i++]);
        }
        tokens.push_back(std::move(t));
    }
    return tokens;
}

}  // namespace brelk::scenario
