// Arrays of a host that hands out the wrong ones, behind the real windows.
#include <windows.h>

#include <prsht.h>

#include "hostile/HostileScenario.h"
#include "wizard/WizardTest.h"

namespace recoveryui::test {
namespace {

const std::wstring kWithNul(L"a\0b.exe", 7);

// Fills what can be filled: texts with a NUL inside, and keys.
SAFEARRAY* Filled(VARTYPE type, LONG low, ULONG count) {
    SAFEARRAYBOUND bound = {count, low};
    SAFEARRAY* const array = SafeArrayCreate(type, 1, &bound);
    com::Bstr text(kWithNul);
    const com::Variant value(kWithNul);
    ULONG key = 1u << 16 | L'Q';
    for (ULONG i = 0; array && i < count; ++i) {
        LONG index = static_cast<LONG>(static_cast<ULONG>(low) + i);
        void* const element = type == VT_BSTR      ? static_cast<void*>(text.Get())
                              : type == VT_VARIANT ? const_cast<VARIANT*>(&value.Get())
                              : type == VT_UI4     ? static_cast<void*>(&key)
                                                   : nullptr;
        if (element) SafeArrayPutElement(array, &index, element);
    }
    return array;
}

// Platforms differ in whether the last index of all can be read.
ULONG ReadableAtTheEnd() {
    const com::CVtlSafeArray<unsigned long> array(Filled(VT_UI4, LONG_MAX, 1));
    unsigned long key = 0;
    LONG index = LONG_MAX;
    return SUCCEEDED(SafeArrayGetElement(array.Get(), &index, &key)) ? 1 : 0;
}

SAFEARRAY* TwoDimensions(VARTYPE type) {
    SAFEARRAYBOUND bounds[] = {{2, 0}, {2, -1}};
    return SafeArrayCreate(type, 2, bounds);
}

struct ArrayCase {
    const char* what;
    HostileScenario::MakeArray make;
    ULONG elements;  // that can be read
};

std::vector<ArrayCase> ArrayCases() {
    return {
        {"no array", nullptr, 0},
        {"no elements", [](VARTYPE type) { return Filled(type, 0, 0); }, 0},
        {"two dimensions", &TwoDimensions, 0},
        {"another type", [](VARTYPE) { return Filled(VT_DATE, 0, 2); }, 0},
        {"a smaller type", [](VARTYPE) { return Filled(VT_UI1, 0, 2); }, 0},
        {"from -2", [](VARTYPE type) { return Filled(type, -2, 2); }, 2},
        {"from 7", [](VARTYPE type) { return Filled(type, 7, 2); }, 2},
        {"up to the last index", [](VARTYPE type) { return Filled(type, LONG_MAX, 1); }, ReadableAtTheEnd()},
        {"empty before the first index", [](VARTYPE type) { return Filled(type, LONG_MIN, 0); }, 0},
        {"beyond the last index", [](VARTYPE type) { return Filled(type, LONG_MAX, 2); }, 0},
        {"nothing in it", [](VARTYPE type) { return SafeArrayCreateVector(type, 0, 1); }, 0},
    };
}

class HostileArraysTest : public WizardTest {
protected:
    static constexpr long kClick = 0, kClose = 2, kKeys = 3, kCrash = 3;

    // A crash scenario with an operation of each kind that holds an array.
    static com::Ptr<HostileScenario> Scenario(const HostileScenario::MakeArray& parts) {
        auto scenario = HostileScenario::Make();
        scenario->kind = kCrash;
        scenario->text = kWithNul;
        scenario->parts = parts;
        scenario->operations = [parts](VARTYPE) {
            com::CVtlSafeArray<IUnknown*> list;
            EXPECT_EQ(list.Create(3), S_OK);
            for (LONG place = 0; const long kind : {kClose, kKeys, kClick}) {
                const auto operation = HostileScenario::Make();
                operation->kind = kind;
                operation->parts = parts;
                EXPECT_EQ(list.PutElement(place++, operation->KeepAlive()), S_OK);
            }
            return list.Detach();
        };
        return scenario;
    }
    static Rows ExpectedRows(ULONG elements) {
        const std::wstring keys[] = {L"", L"Q", L"Q + Q"};
        return {elements ? L"Close process | a" : L"Close process | ", L"Keyboard click | " + keys[elements],
                elements ? L"Keyboard click | Click button with label: a" : L"Keyboard click | "};
    }
    Rows ShowProperties(HostileScenario* scenario, Rows* processes = nullptr) {
        const auto sheet = New<IScenarioProperties>(L"Vantrel.ScenarioProperties");
        rack_.GiveTo(sheet.Get());
        Rows operations;
        const com::Bstr name(kWithNul);
        const auto show = [&] { return sheet->DoModal(scenario->KeepAlive().Get(), name.Get(), name.Get()); };
        const auto read = [&](UserScreen& screen, HWND window) {
            EXPECT_EQ(screen.Text(window, IDC_GENERAL_NAME), L"a");
            EXPECT_EQ(screen.Text(window, IDC_GENERAL_DESCRIPTION), L"a");
            screen.Turn(window, 1);
            if (processes) *processes = screen.RowsOf(window, IDC_PROPERTIES_PROCESSES);
            screen.Turn(window, 2);
            if (GetDlgItem(screen.Page(window), IDC_PROPERTIES_OPERATIONS))
                operations = screen.RowsOf(window, IDC_PROPERTIES_OPERATIONS);
            screen.Press(window, IDOK);
        };
        EXPECT_EQ(Use(L"Recovery Scenario Properties", show, read), S_OK);
        return operations;
    }
};

TEST_F(HostileArraysTest, ThePropertiesSheetShowsWhatCanBeReadAndNothingElse) {
    for (const ArrayCase& c : ArrayCases()) {
        SCOPED_TRACE(c.what);
        Rows processes;
        const auto parts = Scenario(c.make);
        EXPECT_EQ(ShowProperties(parts.Get(), &processes), ExpectedRows(c.elements));
        EXPECT_EQ(processes, Rows(c.elements, L"a"));

        const auto operations = Scenario(nullptr);
        operations->operations = c.make;
        EXPECT_EQ(ShowProperties(operations.Get()), Rows{});
    }
}

TEST_F(HostileArraysTest, TheWizardOpensThemAndCanBeLeft) {
    for (const ArrayCase& c : ArrayCases()) {
        SCOPED_TRACE(c.what);
        const auto scenario = Scenario(c.make);
        EXPECT_EQ(wizard_->put_Scenario(scenario->KeepAlive().Get()), S_OK);
        Browse([&](UserScreen& screen, HWND window) {
            NextUntil(screen, window, L"Select Processes");
            if (CanGoOn(screen, window)) screen.Next(window);
            EXPECT_EQ(screen.PageTitle(window), c.elements ? L"Recovery Operations" : L"Select Processes");
            if (c.elements) {
                EXPECT_EQ(screen.RowsOf(window, IDC_OPERATION_LIST_ROWS), ExpectedRows(c.elements));
            }
        });
    }
}

}  // namespace
}  // namespace recoveryui::test
