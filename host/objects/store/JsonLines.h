// Writes JSON straight into a text, in the form of a recovery file: two spaces for each level, one element
// per line. A tree built only to be written would cost four times as much.
#pragma once

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>

namespace tovarin::store {

class JsonLines {
public:
    // Goes on at the end of the text, `level` levels deep.
    JsonLines(std::string& text, int level) : text_(text), level_(level) {}

    // Braces or brackets around what the body writes.
    template <class Body>
    void Enclose(const char* pair, Body&& body) {
        text_ += pair[0];
        ++level_;
        empty_ = true;
        body();
        --level_;
        if (!empty_) NewLine();
        empty_ = false;
        text_ += pair[1];
    }
    // The next element of what is enclosed.
    void Next() {
        if (!empty_) text_ += ',';
        empty_ = false;
        NewLine();
    }
    void Key(std::string_view key) {
        Next();
        Text(key);
        text_ += ": ";
    }

    // `word` stands as it is.
    void Word(std::string_view word) { text_ += word; }
    template <class Whole>
    void Number(Whole number) {
        char digits[24];
        text_.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
    }
    // `utf8` is well-formed.
    void Text(std::string_view utf8) {
        text_ += '"';
        std::size_t plain = 0;  // the first character that is not yet written
        for (std::size_t at = 0; at < utf8.size(); ++at) {
            const auto character = static_cast<unsigned char>(utf8[at]);
            if (character >= 0x20 && character != '"' && character != '\\') continue;
            text_.append(utf8, plain, at - plain);
            plain = at + 1;
            Escape(character);
        }
        text_.append(utf8, plain);
        text_ += '"';
    }

private:
    void NewLine() {
        text_ += '\n';
        text_.append(2 * static_cast<std::size_t>(level_), ' ');
    }
    void Escape(unsigned char character) {
        constexpr std::string_view kSigns = "\"\\\b\f\n\r\t", kLetters = "\"\\bfnrt";
        text_ += '\\';
        const std::size_t sign = kSigns.find(static_cast<char>(character));
        if (sign != std::string_view::npos) {
            text_ += kLetters[sign];
        } else {
            text_ += "u00";
            for (const int shift : {4, 0}) text_ += "0123456789abcdef"[character >> shift & 15];
        }
    }

    std::string& text_;
    int level_;
    bool empty_ = true;
};

}  // namespace tovarin::store
