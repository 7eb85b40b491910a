#include "app/JournalRows.h"

#include <algorithm>
#include <iterator>

namespace tovarin {

size_t JournalRows::Add(std::vector<JournalRow> rows) {
    std::move(rows.begin(), rows.end(), std::back_inserter(rows_));
    if (rows_.size() <= most_) return 0;
    const size_t surplus = rows_.size() - most_ + most_ / 10;
    rows_.erase(rows_.begin(), rows_.begin() + static_cast<std::ptrdiff_t>(surplus));
    return surplus;
}

std::wstring JournalRows::TextOf(const std::vector<size_t>& indices) const {
    std::wstring text;
    for (const size_t index : indices) {
        const auto& cells = At(index).cells;
        for (size_t column = 0; column < cells.size(); ++column) {
            if (column > 0) text += L'\t';
            std::transform(cells[column].begin(), cells[column].end(), std::back_inserter(text),
                           [](wchar_t character) { return character < L' ' ? L' ' : character; });
        }
        text += L"\r\n";
    }
    return text;
}

MenuText::MenuText(const std::wstring& text) : caption(text.substr(0, text.find(L';'))) {
    if (caption.size() < text.size()) prompt = text.substr(caption.size() + 1);
}

}  // namespace tovarin
