// The stored string of associated scenarios.
#include "model/RecordString.h"

#include <algorithm>

#include "Fuzz.h"
#include "manager/TestLists.h"

namespace recoveryui::fuzz {
namespace {

using model::ReadRecords;
using model::ScenarioAssociation;
using model::WriteRecords;

// A field as the format can carry it.
std::wstring Field(std::wstring text) {
    std::replace(text.begin(), text.end(), L';', L',');
    return text.empty() ? L"x" : text;
}

void ReadAndWrite(const std::wstring& text) {
    const auto records = ReadRecords(text);
    const std::wstring written = WriteRecords(records);
    Require(ReadRecords(written) == records, "what was read survives being written");
    Require(written.size() <= text.size() + 8 * records.size(), "the written form hardly grows");
    Require(8 * records.size() <= text.size() + 1, "every record was in the text");
}

void WriteAndRead(Input input) {
    std::vector<ScenarioAssociation> records;
    model::Texts texts;
    while (!input.Empty() && records.size() < 50) {
        const bool enabled = input.Byte() % 2 != 0;
        const auto mode = static_cast<std::int32_t>(input.Number());
        const std::wstring& file = texts.emplace_front(Field(input.Line()));
        records.push_back({file, texts.emplace_front(Field(input.Line())), enabled, mode});
    }
    const std::wstring text = WriteRecords(records);
    Require(ReadRecords(text) == records, "no record is lost");
    for (std::size_t cut = 0; cut < text.size(); cut += 1 + cut / 4) {
        const auto kept = ReadRecords(std::wstring_view(text).substr(0, cut));
        Require(kept.size() <= records.size(), "a cut text has no more records");
        for (std::size_t i = 0; i + 1 < kept.size(); ++i)
            Require(kept[i] == records[i], "records before the cut are as they were");
    }
}

void AddFromTheManager(Input input) {
    const std::wstring file = Field(input.Line());
    auto names = input.Lines(3);
    for (std::wstring& name : names) name = Field(name);
    const std::wstring stored = input.Rest();
    const auto before = ReadRecords(stored);
    const auto added = manager::WithScenarios(stored, file, names);
    const auto after = added ? ReadRecords(*added) : before;
    Require(after.size() >= before.size() && std::equal(before.begin(), before.end(), after.begin()),
            "what was associated stays, in order");
    for (const std::wstring& name : names) {
        Require(std::any_of(after.begin(), after.end(),
                            [&](const auto& each) { return each.file == file && each.name == name; }),
                "every scenario is associated");
    }
    Require(!added || !manager::WithScenarios(*added, file, names), "nothing is added twice");
}

}  // namespace

void Fuzz(Input input) {
    ReadAndWrite(Input(input).Rest());
    WriteAndRead(input);
    AddFromTheManager(input);
}

}  // namespace recoveryui::fuzz
