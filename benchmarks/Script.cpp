// The script parser beside one pass over the lines.
#include <string>

#include "Compare.h"
#include "Rows.h"
#include "Stage.h"
#include "objects/script/ScriptParser.h"

namespace recoveryui::bench {
namespace {

constexpr size_t kLarge = 10'000'000;

std::wstring MakeLibrary(size_t characters) {
    std::wstring text;
    for (int i = 0; text.size() < characters; ++i) {
        text += L"' Answers the message and goes on.\r\nPublic Function Recover" + std::to_wstring(i) +
                L"(Object, Method, Arguments, RetVal)\r\n    Dim answer\r\n"
                L"    If Browser(\"orders\").Dialog(\"Printer\").Exist(1) Then\r\n"
                L"        answer = \"paper: \" & Object.GetText() : Log answer, #10:30:00#\r\n"
                L"        Dialog(\"Printer\").WinButton(\"OK\").Click 12, 0.5\r\n    End If\r\nEnd "
                L"Function\r\n\r\n";
    }
    return text;
}

size_t CountLines(std::wstring_view text) {
    size_t lines = 0;
    for (size_t at = 0; (at = text.find(L'\n', at)) != std::wstring_view::npos; ++at) ++lines;
    return lines;
}

}  // namespace

void MeasureScript() {
    const std::wstring large = MakeLibrary(kLarge), tenth = MakeLibrary(kLarge / 10);
    const auto parse = [](const std::wstring& text, int times = 1) {
        return Timed([&text, times] {
            for (int i = 0; i < times; ++i) {
                const auto functions = tovarin::ParseScript(text);
                Require(functions && functions->size() > 1000, "the library is refused");
            }
        });
    };
    Compare({{"script: parse 10 MB against finding its lines", 6}}, 11, parse(large),
            Timed([&] { Use(CountLines(large)); }));
    Compare({{"script: parse 10 MB against 1 MB ten times", 1.1}}, 11, parse(large), parse(tenth, 10));
}

}  // namespace recoveryui::bench
