#include "ScenarioLexer.h"

#include <charconv>
#include <stdexcept>
#include <string_view>

namespace brelk::scenario {

namespace {

// Escaped letters and the bytes they stand for, in the same order.
constexpr std::string_view kEscapes = "\"\\rnt", kEscaped = "\"\\\r\n\t";

}  // namespace

std::vector<Token> tokenize(const std::string& line) {
    std::vector<Token> tokens;
    for (std::size_t i = 0, n = line.size(); i < n;) {
        if (line[i] == ' ' || line[i] == '\t') {
            ++i;
            continue;
        }
        Token t;
        if (line[i] != '"') {
            while (i < n && line[i] != ' ' && line[i] != '\t') t.text.push_back(line[i++]);
            tokens.push_back(std::move(t));
            continue;
        }
        t.quoted = true;
        for (++i;; ++i) {
            if (i >= n) throw std::runtime_error("unterminated string");
            if (line[i] == '"') break;
            if (line[i] != '\\') {
                t.text.push_back(line[i]);
                continue;
            }
            if (++i >= n) throw std::runtime_error("unterminated string");
            if (const auto at = kEscapes.find(line[i]); at != std::string_view::npos) {
                t.text.push_back(kEscaped[at]);
            } else if (unsigned byte = 0; line[i] == 'x' && i + 2 < n &&
                                          std::from_chars(&line[i + 1], &line[i + 3], byte, 16).ptr == &line[i + 3]) {
                t.text.push_back(static_cast<char>(byte));
                i += 2;
            } else {
                throw std::runtime_error(line[i] == 'x' ? "bad \\x escape" : std::string("unknown escape \\") + line[i]);
            }
        }
        ++i;
        tokens.push_back(std::move(t));
    }
    return tokens;
}

std::string quote(const std::string& s) {
    std::string out = "\"";
    for (const unsigned char c : s) {
        if (const auto at = kEscaped.find(static_cast<char>(c)); at != std::string_view::npos) {
            out += '\\';
            out += kEscapes[at];
        } else if (c < 0x20) {
            out += "\\x";
            out += "0123456789ABCDEF"[c >> 4];
            out += "0123456789ABCDEF"[c & 15];
        } else {
            out += static_cast<char>(c);
        }
    }
    return out + "\"";
}

}  // namespace brelk::scenario
