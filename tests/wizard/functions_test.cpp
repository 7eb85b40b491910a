#include <gtest/gtest.h>

#include "wizard/FunctionControls.h"
#include "wizard/FunctionName.h"
#include "wizard/FunctionText.h"
#include "wizard/NewFunctions.h"

namespace recoveryui::wizard {
namespace {

TEST(FunctionTextTest, TheTriggerDecidesThePrototype) {
    struct {
        std::int32_t kind, mode;
        std::wstring head;
    } const rows[] = {
        {0, 1, L"Function RecoveryFunction1(Object)"},
        {1, 1, L"Function RecoveryFunction1(Object)"},
        {2, 0, L"Function RecoveryFunction1(Object, Method, Arguments, retVal)"},
        {3, 2, L"Function RecoveryFunction1(ProcessName, ProcessID)"},
    };
    for (const auto& row : rows) {
        const auto prototype = PrototypeFor(row.kind);
        ASSERT_TRUE(prototype) << row.kind;
        EXPECT_EQ(prototype->mode, row.mode);
        EXPECT_EQ(prototype->head, row.head);
        EXPECT_EQ(FunctionTemplate(*prototype), row.head + L"\r\n\r\nEnd Function\r\n");
    }
    EXPECT_FALSE(PrototypeFor(-1));
    EXPECT_FALSE(PrototypeFor(4));
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
        {L"Sub A(x)", L"Fix", L"Sub A(x)"},
        {L"   ", L"Fix", L"   "},
        {L"", L"Fix", L""},
    };
    for (const auto& row : rows) EXPECT_EQ(RenameFunction(row.text, row.name), row.renamed);
}

TEST(NewFunctionsTest, KeepOneFunctionPerLibraryAndNameInTheOrderOfDefinition) {
    NewFunctionList list;
    EXPECT_TRUE(list.Add({L"lib.vbs", L"C:\\t\\lib.vbs", L"Beta", L"b"}));
    EXPECT_TRUE(list.Add({L"lib.vbs", L"C:\\t\\lib.vbs", L"Alpha", L"a"}));
    EXPECT_TRUE(list.Add({L"other.vbs", L"C:\\t\\other.vbs", L"Beta", L"o"}));
    EXPECT_FALSE(list.Add({L"C:\\T\\LIB.vbs", L"C:\\T\\LIB.vbs", L"BETA", L"again"}));
    EXPECT_EQ(list.NamesIn(L"c:\\t\\Lib.vbs"), (std::vector<std::wstring>{L"Beta", L"Alpha"}));
    ASSERT_NE(list.Find(L"c:\\t\\lib.vbs", L"beta"), nullptr);
    EXPECT_EQ(list.Find(L"c:\\t\\lib.vbs", L"beta")->text, L"b");
    EXPECT_EQ(list.Find(L"lib.vbs", L"Beta"), nullptr);  // the typed form alone names no library

    EXPECT_TRUE(list.Drop(L"C:\\t\\LIB.VBS", L"beta"));
    EXPECT_FALSE(list.Drop(L"C:\\t\\lib.vbs", L"Beta"));
    ASSERT_EQ(list.All().size(), 2U);
    EXPECT_EQ(list.All()[0].name, L"Alpha");
    EXPECT_EQ(list.All()[1].typedPath, L"other.vbs");
}

TEST(FunctionNameTest, ANameIsRefusedWhenItIsNoNameOrTaken) {
    using enum FunctionNameVerdict;
    NewFunctionList pending;
    pending.Add({L"lib.vbs", L"C:\\lib.vbs", L"Waiting", L"w"});
    const std::vector<std::wstring> library = {L"RecoveryFunction1"};
    struct {
        std::wstring name, path;
        FunctionNameVerdict verdict;
    } const rows[] = {
        {L"Fix", L"C:\\lib.vbs", Accepted},
        {L"Fix\tIt", L"C:\\lib.vbs", Accepted},
        {L"", L"C:\\lib.vbs", Empty},
        {L"Fix Dialog", L"C:\\lib.vbs", ContainsBlank},
        {L"recoveryfunction1", L"C:\\lib.vbs", InLibrary},
        {L"WAITING", L"c:\\LIB.vbs", Pending},
        {L"Waiting", L"C:\\other.vbs", Accepted},
    };
    for (const auto& row : rows)
        EXPECT_EQ(JudgeFunctionName(row.name, library, pending, row.path), row.verdict);
}

TEST(FunctionControlsTest, TheModeAndTheLibraryDecideWhatCanBeUsed) {
    using enum FunctionMode;
    struct {
        FunctionPageState state;
        FunctionControls controls;
    } const rows[] = {
        {{.mode = Define, .newName = L"F", .newText = L"t"}, {}},
        {{.libraryLoaded = true, .hasFunctions = true, .functionSelected = true},
         {true, true, true, true, false, true}},
        {{.libraryLoaded = true, .hasFunctions = true}, {true, true, true, true, false, false}},
        {{.libraryLoaded = true, .hasFunctions = true, .mode = Define, .newName = L"F", .newText = L"t"},
         {true, true, false, true, true, true}},
        {{.libraryLoaded = true, .mode = Define, .newName = L"", .newText = L"t"},
         {false, true, false, true, true, false}},
        {{.libraryLoaded = true, .mode = Define, .newName = L"F", .newText = L""},
         {false, true, false, true, true, false}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "case " << &row - rows);
        EXPECT_EQ(ControlsFor(row.state), row.controls);
    }
    EXPECT_EQ(ModeAfterLoading(true), Select);
    EXPECT_EQ(ModeAfterLoading(false), Define);
}

}  // namespace
}  // namespace recoveryui::wizard
