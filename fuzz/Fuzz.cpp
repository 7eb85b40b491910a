#include "Fuzz.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace recoveryui::fuzz {
namespace {

// UTF-8 up to U+FFFF without its rules, so that every UTF-16 unit can be written, halves of pairs too. Two
// halves that meet are one character here, where characters have four bytes.
std::wstring Wide(std::string_view bytes) {
    std::wstring text;
    for (std::size_t at = 0; at < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[at++]);
        unsigned unit = lead < 0x80 ? lead : lead < 0xe0 ? lead & 0x1f : lead & 0x0f;
        for (int more = lead < 0x80 ? 0 : lead < 0xe0 ? 1 : 2; more > 0 && at < bytes.size(); --more)
            unit = unit << 6 | (static_cast<unsigned char>(bytes[at++]) & 0x3f);
        if ((unit & 0xfc00) == 0xdc00 && !text.empty() && (text.back() & ~0x3ff) == 0xd800) {
            text.back() = static_cast<wchar_t>(0x10000 + ((text.back() & 0x3ff) << 10) + (unit & 0x3ff));
        } else {
            text += static_cast<wchar_t>(unit);
        }
    }
    return text;
}

}  // namespace

std::uint8_t Input::Byte() {
    if (bytes_.empty()) return 0;
    const auto byte = static_cast<std::uint8_t>(bytes_.front());
    bytes_.remove_prefix(1);
    return byte;
}

std::size_t Input::Below(std::size_t limit) {
    return limit == 0 ? 0 : Byte() % limit;
}

std::uint32_t Input::Number() {
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i) number = number << 8 | Byte();
    return number;
}

std::wstring Input::Line() {
    const std::string_view line = bytes_.substr(0, bytes_.find('\n'));
    bytes_.remove_prefix(std::min(line.size() + 1, bytes_.size()));
    return Wide(line);
}

std::vector<std::wstring> Input::Lines(std::size_t most) {
    std::vector<std::wstring> lines;
    while (!Empty() && lines.size() < most) lines.push_back(Line());
    return lines;
}

std::wstring Input::Rest() {
    const std::string_view rest = bytes_;
    bytes_ = {};
    return Wide(rest);
}

void Require(bool held, const char* promise) {
    if (held) return;
    std::fprintf(stderr, "BROKEN PROMISE: %s\n", promise);
    std::abort();
}

}  // namespace recoveryui::fuzz

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace recoveryui::fuzz;
    Fuzz(Input(std::string_view(reinterpret_cast<const char*>(data), size)));
    return 0;
}
