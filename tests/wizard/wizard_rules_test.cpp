// What the wizard's pages decide, without a window.
#include <gtest/gtest.h>

#include <string>

#include "wizard/ClickChoice.h"
#include "wizard/FunctionText.h"

namespace recoveryui::wizard {
namespace {

TEST(ButtonLabelsTest, AreCaptionsWithoutTheirMnemonics) {
    EXPECT_EQ(ButtonLabels({L"&OK", L"", L"Save && &Close", L"&", L"Cancel"}),
              (std::vector<std::wstring>{L"OK", L"Save & Close", L"Cancel"}));
}

TEST(FunctionTextTest, TheTriggerDecidesThePrototype) {
    const std::pair<std::int32_t, const wchar_t*> rows[] = {{1, L"(Object)"},
                                                            {1, L"(Object)"},
                                                            {0, L"(Object, Method, Arguments, retVal)"},
                                                            {2, L"(ProcessName, ProcessID)"}};
    for (int kind = 0; kind < 4; ++kind) {
        const auto prototype = PrototypeFor(kind);
        ASSERT_TRUE(prototype) << kind;
        EXPECT_EQ(prototype->mode, rows[kind].first) << kind;
        EXPECT_EQ(prototype->head, L"Function RecoveryFunction1" + std::wstring(rows[kind].second)) << kind;
        EXPECT_EQ(FunctionTemplate(*prototype), prototype->head + L"\r\n\r\nEnd Function\r\n");
    }
    for (const int none : {-1, 4}) EXPECT_FALSE(PrototypeFor(none));
}

TEST(FunctionTextTest, TheNameInTheTextFollowsTheNameTyped) {
    struct {
        std::wstring text, name, renamed;
    } const rows[] = {
        {L"Function A(x)\r\nB (1)\r\nEnd Function", L"Fix", L"Function Fix(x)\r\nB (1)\r\nEnd Function"},
        {L"  fUNCTION  A (x, y)", L"Fix", L"Function Fix(x, y)"},
        {L"Function (x)", L"Fix", L"Function Fix(x)"},
        {L"Function A(x)", L"", L"Function (x)"},
        {L"Function A(x)", L" Fix It ", L"Function  Fix It (x)"},
        {L"Function A(", L"Fix", L"Function Fix("},
        {L"Function A", L"Fix", L"Function A"},
        {L"Function", L"Fix", L"Function"},
        {L"function(x)", L"Fix", L"function(x)"},
        {L"Function\tA(x)", L"Fix", L"Function\tA(x)"},
        {L"Public Function A(x)", L"Fix", L"Public Function A(x)"},
        {L"", L"Fix", L""},
    };
    for (const auto& row : rows) EXPECT_EQ(RenameFunction(row.text, row.name), row.renamed);
}

}  // namespace
}  // namespace recoveryui::wizard
