// Which functions a library has, as data.
#include <gtest/gtest.h>

#include "objects/script/ScriptParser.h"

namespace tovarin {
namespace {

// "name=text" of each function, joined by "|"; "rejected" for no script.
std::wstring Functions(std::wstring_view text) {
    const auto functions = ParseScript(text);
    if (!functions) return L"rejected";
    std::wstring list;
    for (const ScriptFunction& function : *functions) {
        if (!list.empty()) list += L'|';
        list.append(function.name).append(L"=").append(text.substr(function.start, function.length));
    }
    return list;
}

TEST(HostScriptParser, FunctionsAndSubsAreFoundWithTheirExactText) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"", L""},
        {L"x = 1", L""},
        {L"Function A(b)\r\n  A = b\r\nEnd Function\r\n", L"A=Function A(b)\r\n  A = b\r\nEnd Function"},
        {L"  public default function a : END\tFUNCTION ' c", L"a=public default function a : END\tFUNCTION"},
        {L"Sub A\nEnd Sub\nPrivate Sub B()\rEnd Sub", L"A=Sub A\nEnd Sub|B=Private Sub B()\rEnd Sub"},
        {L"x=1:Sub A() y = 2 End Sub", L"A=Sub A() y = 2 End Sub"},
        {L"Public _\r\n Function _ \n A _\n (b)\nEnd _\nFunction",
         L"A=Public _\r\n Function _ \n A _\n (b)\nEnd _\nFunction"},
        {L"Function [End Sub](a)\nEnd Function", L"End Sub=Function [End Sub](a)\nEnd Function"},
        {L"Function A\nIf x Then Exit Function\nEnd If\no.End Function\n", L"rejected"},
        {L"Function A\no.End : o.Function : o . _\n Sub\nEnd Function",
         L"A=Function A\no.End : o.Function : o . _\n Sub\nEnd Function"},
        {L"Public x : Private Function\n", L"rejected"},
        {L"Public x, y\nFunction A: End Function", L"A=Function A: End Function"},
        {L"Dim Functions, SubTotal, EndSub", L""},
        {L"Default = 1 : Property = 2 : x = Property", L""},
    };
    for (const auto& [text, functions] : cases) EXPECT_EQ(Functions(text), functions) << text;
}

TEST(HostScriptParser, CommentsStringsDatesAndNumbersHideNothingAndShowNothing) {
    for (const wchar_t* line : {L"' Function A", L"Rem Function A", L"x = 1 : rem : Function A", L"REM",
                                L"x = \"Function A : Sub B\"", L"x = \"a\"\"\" : y = \"\"\"' \" : z = \"\"",
                                L"t = #10:30:00# : u = 1", L"' a _\nx = 1", L"x = 1.5e3", L"Remark = 1",
                                L"x = a'Sub B", L"x = 5 # 3"}) {
        const std::wstring script = std::wstring(line) + L"\nSub Z\n" + line + L"\nEnd Sub";
        EXPECT_EQ(Functions(script), L"Z=Sub Z\n" + std::wstring(line) + L"\nEnd Sub");
    }
    // A continued comment does not exist, a continued line does.
    EXPECT_EQ(Functions(L"x = \"a\" & _\n\"Function B\""), L"");
    EXPECT_EQ(Functions(L"Rem x _\nSub A\nEnd Sub"), L"A=Sub A\nEnd Sub");
}

TEST(HostScriptParser, MembersOfClassesAreNoLibraryFunctions) {
    EXPECT_EQ(Functions(L"Class C\nPublic Default Function A\nEnd Function\nProperty Get P\nEnd Property\n"
                        L"Public Property Let P(v) : End Property\nEnd Class\nSub B\nEnd Sub"),
              L"B=Sub B\nEnd Sub");
}

TEST(HostScriptParser, WhatCannotBeAScriptIsRejected) {
    for (const wchar_t* text :
         {L"Function A", L"Function A\nFunction B\nEnd Function\nEnd Function", L"Function A\nEnd Sub",
          L"End Function", L"End Sub", L"Sub A\nClass C\nEnd Class\nEnd Sub", L"Class C",
          L"Class C\nClass D\nEnd Class\nEnd Class", L"End Class", L"Class C\nSub A\nEnd Class\nEnd Sub",
          L"Property Get A\nEnd Property", L"Function\nEnd Function", L"Sub (a)\nEnd Sub", L"x = \"open",
          L"x = \"open\ny = \"\"", L"x = [open", L"MZ\x90\x3", L"x\x1Fy", L"a\x1A b"})
        EXPECT_EQ(Functions(text), L"rejected") << text;
    EXPECT_EQ(Functions(std::wstring_view(L"x\0y", 3)), L"rejected");
    EXPECT_EQ(Functions(L"Sub A\nEnd Sub\n\x1A"), L"A=Sub A\nEnd Sub");
}

}  // namespace
}  // namespace tovarin
