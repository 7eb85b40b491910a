#include "model/RecordString.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <limits>
#include <utility>

namespace recoveryui::model {
namespace {

constexpr wchar_t kBetweenFields = L';';
constexpr wchar_t kAfterRecord = L'*';
constexpr std::size_t kShortestRecord = 8;
constexpr std::size_t kLongestRest = 16;  // ";" three times, enabled, eight digits, "*"; made even

// strtok's rule with a separator of its own for each token: only a leading run of the current
// separator is skipped, so a stray "*" after a record becomes part of the next file.
class Tokens {
public:
    explicit Tokens(std::wstring_view text) : at_(text.data()), end_(at_ + text.size()) {}

    // `likely` is an earlier token of the same separator: most files are that of the record before.
    std::optional<std::wstring_view> Next(wchar_t separator, std::wstring_view likely = {}) {
        while (at_ != end_ && *at_ == separator) ++at_;
        if (at_ == end_) return std::nullopt;
        if (Follows(likely) && at_[likely.size()] == separator) {
            at_ += likely.size() + 1;
            return likely;
        }
        const wchar_t* const start = at_;
        while (at_ != end_ && *at_ != separator) ++at_;
        const std::wstring_view token(start, static_cast<std::size_t>(at_ - start));
        if (at_ != end_) ++at_;
        return token;
    }

private:
    // Never at the very end, so that a character more can be looked at.
    bool Follows(std::wstring_view token) const {
        return !token.empty() && token.size() < static_cast<std::size_t>(end_ - at_) &&
               std::memcmp(at_, token.data(), token.size() * sizeof(wchar_t)) == 0;
    }

    const wchar_t* at_;
    const wchar_t* end_;
};

unsigned DigitValue(wchar_t c) {
    if (c >= L'0' && c <= L'9') return static_cast<unsigned>(c - L'0');
    if (c >= L'a' && c <= L'f') return static_cast<unsigned>(c - L'a') + 10;
    if (c >= L'A' && c <= L'F') return static_cast<unsigned>(c - L'A') + 10;
    return std::numeric_limits<unsigned>::max();
}

// The number that the text begins with, as the C library reads it (blanks, sign, "0x"); 0 without a
// digit. Too large a number stays at the limit.
std::uint32_t NumericPrefix(std::wstring_view text, unsigned base) {
    const std::size_t start = text.find_first_not_of(L" \t\n\v\f\r");
    if (start == std::wstring_view::npos) return 0;
    text.remove_prefix(start);
    const bool negative = text.front() == L'-';
    if (negative || text.front() == L'+') text.remove_prefix(1);
    if (base == 16 && text.size() > 2 && text[0] == L'0' && (text[1] | 0x20) == L'x' &&
        DigitValue(text[2]) < base)
        text.remove_prefix(2);
    std::uint64_t value = 0;
    for (const wchar_t c : text) {
        const unsigned digit = DigitValue(c);
        if (digit >= base) break;
        value = value * base + digit;
        if (value > std::numeric_limits<std::uint32_t>::max())
            return std::numeric_limits<std::uint32_t>::max();
    }
    const auto number = static_cast<std::uint32_t>(value);
    return negative ? 0u - number : number;
}

// Texts are short: going for the library's function would take as long as what it does.
wchar_t* Put(wchar_t* to, std::wstring_view text) {
    constexpr std::size_t kBlock = 8;
    const wchar_t* from = text.data();
    std::size_t left = text.size();
    if (left < kBlock) return std::copy_n(from, left, to);
    for (; left > kBlock; left -= kBlock, from += kBlock, to += kBlock)
        std::memcpy(to, from, kBlock * sizeof(wchar_t));
    to += left;
    std::memcpy(to - kBlock, from + left - kBlock, kBlock * sizeof(wchar_t));
    return to;
}

// What follows the name. It is put in one piece of a fixed length, and mostly it is that of the record
// before.
class Rest {
public:
    wchar_t* Put(wchar_t* to, bool enabled, std::uint32_t mode) {
        if (length_ == 0 || enabled != enabled_ || mode != mode_) Make(enabled, mode);
        std::memcpy(to, text_.data(), sizeof text_);
        return to + length_;
    }

private:
    void Make(bool enabled, std::uint32_t mode) {
        wchar_t* to = text_.data();
        for (const wchar_t character : {kBetweenFields, enabled ? L'1' : L'0', kBetweenFields})
            *to++ = character;
        int shift = 28;
        while (shift > 0 && (mode >> shift) == 0) shift -= 4;
        for (; shift >= 0; shift -= 4) *to++ = L"0123456789abcdef"[(mode >> shift) & 0xF];
        *to++ = kAfterRecord;
        length_ = to - text_.data();
        enabled_ = enabled;
        mode_ = mode;
    }

    std::array<wchar_t, kLongestRest> text_{};
    std::ptrdiff_t length_ = 0;
    bool enabled_ = false;
    std::uint32_t mode_ = 0;
};

bool Same(std::wstring_view a, std::wstring_view b) {
    return a.size() == b.size() && (a.data() == b.data() || a == b);
}

// The path as it is where it cannot be converted.
std::wstring_view Converted(std::wstring_view path, const PathConversion& conversion, Texts& converted) {
    std::wstring text = conversion ? conversion(std::wstring(path)) : std::wstring();
    return text.empty() ? path : converted.emplace_front(std::move(text));
}

// Remembers the last path: the records of a test come in runs of one file.
class Converter {
public:
    Converter(const PathConversion& conversion, Texts& converted)
        : conversion_(conversion), converted_(converted) {}

    std::wstring_view From() const { return from_; }
    std::wstring_view operator()(std::wstring_view path) {
        if (!Same(path, from_)) to_ = Converted(from_ = path, conversion_, converted_);
        return to_;
    }

private:
    const PathConversion& conversion_;
    Texts& converted_;
    std::wstring_view from_;
    std::wstring_view to_;
};

// About as many records as the text holds, going by its beginning: to count them all costs a pass over it.
std::size_t LikelyCount(std::wstring_view text) {
    constexpr std::size_t kSample = 4096;
    const std::wstring_view sample = text.substr(0, kSample);
    const auto ends = static_cast<std::size_t>(std::count(sample.begin(), sample.end(), kAfterRecord));
    return std::min(ends * (text.size() / kSample + 1), text.size() / kShortestRecord) + 1;
}

}  // namespace

std::vector<ScenarioAssociation> ReadRecords(std::wstring_view text, const PathConversion& toFull,
                                             Texts& paths) {
    std::vector<ScenarioAssociation> records;
    records.reserve(LikelyCount(text));
    Tokens tokens(text);
    Converter fullPath(toFull, paths);
    while (const auto file = tokens.Next(kBetweenFields, fullPath.From())) {
        const auto name = tokens.Next(kBetweenFields);
        const auto enabled = tokens.Next(kBetweenFields);
        const auto mode = tokens.Next(kAfterRecord);
        if (!name || !enabled || !mode) break;
        records.push_back({fullPath(*file), *name, NumericPrefix(*enabled, 10) == 1,
                           static_cast<std::int32_t>(NumericPrefix(*mode, 16))});
    }
    return records;
}

// Fresh memory is most of what writing a long list takes. It is touched once only, and what the processor
// has forgotten when the platform has handed out a page is asked for ahead.
std::wstring WriteRecords(std::span<const ScenarioAssociation> records, std::optional<std::int32_t> mode,
                          const PathConversion& toStored) {
    constexpr std::ptrdiff_t kAhead = 16;
    struct Run {  // of records of one file
        std::wstring_view path;
        std::size_t records;
    };
    std::vector<Run> runs;
    Texts paths;
    std::size_t room = 0;
    for (const ScenarioAssociation *record = records.data(), *const end = record + records.size();
         record != end;) {
        const ScenarioAssociation* const first = record;
        std::size_t names = 0;
        for (; record != end && Same(record->file, first->file); ++record) names += record->name.size();
        const Run run{Converted(first->file, toStored, paths), static_cast<std::size_t>(record - first)};
        runs.push_back(run);
        room += names + run.records * (run.path.size() + kLongestRest);
    }
    std::wstring text;
    text.resize_and_overwrite(room, [&](wchar_t* const start, std::size_t) noexcept {
        Rest rest;
        wchar_t* to = start;
        const ScenarioAssociation *record = records.data(), *const end = record + records.size();
        for (const Run& run : runs) {
            for (std::size_t left = run.records; left > 0; --left, ++record) {
                if (end - record > 2 * kAhead) {
                    __builtin_prefetch(record + 2 * kAhead);
                    __builtin_prefetch(record[kAhead].name.data());
                }
                to = Put(to, run.path);
                *to++ = kBetweenFields;
                to = Put(to, record->name);
                to = rest.Put(to, record->enabled,
                              static_cast<std::uint32_t>(mode.value_or(record->ActivationMode)));
            }
        }
        return static_cast<std::size_t>(to - start);
    });
    return text;
}

}  // namespace recoveryui::model
