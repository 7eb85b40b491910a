// "Select Test Run Error" as its user meets it.
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

constexpr const wchar_t* kTitle = L"Select Test Run Error";

class ErrorPageTest : public WizardTest {
protected:
    void EditError(std::uint32_t code) {
        const auto trigger = New<IErrorRecoveryTrigger>(L"Vantrel.ErrorRecoveryTrigger");
        EXPECT_EQ(trigger->SetErrorCode(static_cast<long>(code)), S_OK);
        Edit(trigger.Get());
    }
};

TEST_F(ErrorPageTest, ThePageExplainsEachErrorAndGoesOnWithTheChosenOne) {
    const struct {
        const wchar_t* label;
        const wchar_t* description;
        const wchar_t* code;
    } errors[] = {
        {L"Any error", L"Any error code", L"0"},
        {L"Item in list or menu is not unique", L"More than one item", L"-2147220982"},
        {L"Item in list or menu not found", L"Tovarin cannot identify", L"-2147220983"},
        {L"More than one object responds to the physical description", L"More than one object",
         L"-2147220989"},
        {L"Object is disabled",
         L"Tovarin cannot perform the step because the object specified in the step is "
         L"currently disabled.",
         L"-2147220984"},
        {L"Object not found", L"No object within", L"-2147220990"},
        {L"Object not visible",
         L"Tovarin cannot perform the step because the object specified in the step is "
         L"not currently visible",
         L"-2147220987"},
    };
    EXPECT_EQ(
        Run([&](UserScreen& screen, HWND wizard) {
            NextUntil(screen, wizard, L"Select Trigger Event");
            screen.Check(wizard, IDC_SELECT_TRIGGER_ERROR);
            screen.Next(wizard);
            EXPECT_EQ(screen.WizardButtons(wizard), L"B* n f");
            screen.Picture(wizard, L"error-fresh");
            Rows labels;
            for (const auto& error : errors) labels.push_back(error.label);
            EXPECT_EQ(screen.RowsOf(wizard, IDC_SELECT_ERROR_LIST), labels);
            for (const auto& error : errors) {
                screen.Choose(wizard, IDC_SELECT_ERROR_LIST, error.label);
                EXPECT_EQ(screen.Text(wizard, IDC_SELECT_ERROR_DESCRIPTION).rfind(error.description, 0), 0u)
                    << Utf8(screen.Text(wizard, IDC_SELECT_ERROR_DESCRIPTION));
                screen.Picture(wizard, std::wstring(L"error-") + error.code);
                screen.Next(wizard);
                EXPECT_TRUE(Called(std::wstring(L"ErrorRecoveryTrigger.SetErrorCode(") + error.code + L")"));
                EXPECT_EQ(screen.PageTitle(wizard), L"Recovery Operations");
                screen.Back(wizard);
                EXPECT_EQ(screen.Chosen(wizard, IDC_SELECT_ERROR_LIST), Rows{error.label});
            }
            FailCall(L"ErrorRecoveryTrigger", L"SetErrorCode");
            screen.Next(wizard);
            EXPECT_EQ(screen.PageTitle(wizard), kTitle);
            screen.Cancel(wizard);
        }),
        S_FALSE);
}

TEST_F(ErrorPageTest, EditingShowsTheTriggersErrorIfItIsKnown) {
    for (const auto& [code, chosen] : {std::pair{0x80040208u, Rows{L"Object is disabled"}},
                                       std::pair{0u, Rows{L"Any error"}}, std::pair{0x80040299u, Rows{}}}) {
        EditError(code);
        EXPECT_EQ(Run([&](UserScreen& screen, HWND wizard) {
                      NextUntil(screen, wizard, kTitle);
                      EXPECT_EQ(screen.Chosen(wizard, IDC_SELECT_ERROR_LIST), chosen);
                      EXPECT_EQ(screen.IsEnabled(wizard, 0x3024), !chosen.empty());
                      screen.Cancel(wizard);
                  }),
                  S_FALSE);
    }
}

}  // namespace
}  // namespace recoveryui::test
