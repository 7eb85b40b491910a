// The text of a recovery file. docs/file-format.md describes it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "objects/store/StoreModel.h"

namespace tovarin::store {

inline constexpr int kFormatVersion = 1;

// What is larger is refused on both ways, so that whatever was written can be read again.
inline constexpr std::size_t kMostBytes = 256u << 20;
inline constexpr std::size_t kMostScenarios = 1'000'000;
inline constexpr std::size_t kMostItems = 100'000;         // of one list
inline constexpr std::size_t kMostCharacters = 16u << 20;  // of one text
inline constexpr std::size_t kMostDepth = 16;

enum class ReadResult {
    Read,
    Corrupt,  // no recovery file, or a damaged one
    Newer,    // a well-formed file of a later format
};

// The scenarios in file order; left alone unless the result is Read.
ReadResult ReadStore(std::string_view bytes, std::vector<NamedScenario>& scenarios);

// Collects scenarios into the text of a file. The same content always gives the same bytes.
class StoreWriter {
public:
    StoreWriter();
    void Add(std::wstring_view name, const Scenario& scenario);
    // The whole text; nothing can be added after it.
    std::string Finish();

private:
    std::string text_;
    bool empty_ = true;
};

// False for a scenario with a text or a list beyond the limits.
bool WithinLimits(std::wstring_view name, const Scenario& scenario);

}  // namespace tovarin::store
