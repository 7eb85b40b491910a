// What every fuzz target is made of: `Fuzz` takes one input apart and ends the process when a promise does
// not hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace recoveryui::fuzz {

// Texts and numbers out of the bytes that the fuzzer made up. Nothing is ever missing: behind the end there
// are zeros and empty texts.
class Input {
public:
    explicit Input(std::string_view bytes) : bytes_(bytes) {}

    bool Empty() const { return bytes_.empty(); }
    std::uint8_t Byte();
    // Below `limit`; 0 for a limit of 0.
    std::size_t Below(std::size_t limit);
    std::uint32_t Number();
    // Up to the next line feed.
    std::wstring Line();
    std::vector<std::wstring> Lines(std::size_t most);
    std::wstring Rest();
    std::string_view Bytes() const { return bytes_; }

private:
    std::string_view bytes_;
};

// Reports the broken promise and aborts.
void Require(bool held, const char* promise);

// One execution of the target that the program is linked with.
void Fuzz(Input input);

}  // namespace recoveryui::fuzz
