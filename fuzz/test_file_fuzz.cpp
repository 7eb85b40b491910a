// The file of a test: its settings, among whatever else stands there.
#include "objects/services/TestFile.h"

#include "Fuzz.h"

namespace recoveryui::fuzz {

void Fuzz(Input input) {
    using namespace tovarin;
    const std::string_view text = input.Bytes();
    if (const auto settings = ReadTestFile(text)) {
        const std::string written = WriteTestFile(*settings, text);
        Require(ReadTestFile(written) == settings, "what was read survives being written");
        Require(WriteTestFile(*settings, written) == written, "the same settings give the same bytes");
    }

    Settings made;
    for (int left = 4; left > 0 && !input.Empty(); --left) {
        SettingList& list = made[input.Line()];
        for (std::size_t more = input.Below(4); more > 0; --more) {
            SettingValue& value = list[input.Line()];
            if (input.Byte() % 2 != 0) {
                value = input.Line();
            } else {
                value = static_cast<std::int32_t>(input.Number());
            }
        }
    }
    // over a text that is no test, and over one that is
    for (const std::string_view previous : {text, std::string_view(R"({"formatVersion":1,"other":[1]})")}) {
        const auto read = ReadTestFile(WriteTestFile(made, previous));
        if (!read) continue;  // a file of another format keeps its version
        Require(*read == made, "every setting survives");
    }
}

}  // namespace recoveryui::fuzz
