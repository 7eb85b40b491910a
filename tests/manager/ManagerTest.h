// The Manager as a host opens it, with recovery files in a folder of the test's own.
#pragma once

#include <filesystem>
#include <map>
#include <memory>

#include "HostInterfaces.h"
#include "com/Object.h"
#include "com/SafeArray.h"
#include "com/Variant.h"
#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "resources/ids.h"

namespace recoveryui::test {

inline constexpr wchar_t kSaveQuestion[] = L"Do you want to save changes before closing?";

// The test options of a host: what was written, by name and flags ("Name 1 0").
class RecordedOptions final : public com::Object<RecordedOptions, IDispatch, ITestOptions> {
public:
    using Values = std::map<std::wstring, std::wstring>;
    explicit RecordedOptions(std::shared_ptr<Values> values) : values_(std::move(values)) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) noexcept override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetItem(VARIANT item, VARIANT* found) noexcept override {
        if (com::ViewOf(item.bstrVal) != L"ReplayRecovery") return E_FAIL;
        *found = com::Variant(static_cast<IDispatch*>(this)).Detach();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetOptionValue(BSTR, BSTR name, VARIANT* value, long, long) noexcept override {
        const auto found = values_->find(std::wstring(com::ViewOf(name)));
        if (found == values_->end()) return E_FAIL;
        *value = com::Variant(found->second).Detach();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetOptionValue(BSTR, BSTR name, VARIANT value, long toDefaults, long toTest,
                                             long, long, long) noexcept override {
        (*values_)[std::wstring(com::ViewOf(name)) + L" " + std::to_wstring(toDefaults) + L" " +
                   std::to_wstring(toTest)] = com::ViewOf(value.bstrVal);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetSettingsRegistryPath(BSTR*) noexcept override { return E_NOTIMPL; }

private:
    std::shared_ptr<Values> values_;
};

class ManagerTest : public ComTest {
protected:
    ManagerTest() {
        folder_ = std::filesystem::temp_directory_path() / L"recovery files";
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
        rack_.Put(L"TestOptions", static_cast<IDispatch*>(RecordedOptions::Make(options_).Get()))
            .Put(L"RecordMgr", L"Tovarin.RecordMgr");
    }
    ~ManagerTest() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    using Story = std::function<void(UserScreen&, HWND manager)>;
    // Shows the Manager to a user, who closes it in the end.
    void Manage(Story story, unsigned patience = 20) {
        const auto manager = New<IRecoveryDlg>(L"Vantrel.RecoveryDlg");
        rack_.GiveTo(manager.Get());
        User user(
            [story = std::move(story)](UserScreen& screen) {
                story(screen, screen.WaitForWindow(L"Recovery Scenario Manager"));
            },
            patience);
        EXPECT_EQ(manager->DoModal(), S_OK);
    }

    std::wstring Path(const wchar_t* name) const { return (folder_ / name).wstring(); }
    static com::Bstr Text(const std::wstring& text) { return com::Bstr(text); }

    com::Ptr<IRecoveryRepository> Load(const std::wstring& path, bool readOnly) const {
        const auto repository = New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
        rack_.GiveTo(repository.Get());
        EXPECT_EQ(repository->Load(Text(path).Get(), readOnly ? VARIANT_TRUE : VARIANT_FALSE), S_OK);
        return repository;
    }
    // A pop-up, answered by ENTER; the test goes on with the next step.
    static com::Ptr<IRecoveryScenario> Scenario(const std::wstring& description) {
        const auto scenario = New<IRecoveryScenario>(L"Vantrel.ReplayRecoveryScenario");
        const auto trigger = New<IPopUpRecoveryTrigger>(L"Vantrel.PopUpRecoveryTrigger");
        const auto enter = New<IKeyBoardSimulatorRecoveryAction>(L"Vantrel.KeyBoardSimulatorRecoveryAction");
        com::CVtlSafeArray<unsigned long> keys;
        com::CVtlSafeArray<IUnknown*> operations;
        EXPECT_EQ(keys.Create(1), S_OK);
        EXPECT_EQ(keys.PutElement(0, VK_RETURN), S_OK);
        EXPECT_EQ(enter->SetKeySequence(keys.Get()), S_OK);
        EXPECT_EQ(operations.Create(1), S_OK);
        EXPECT_EQ(operations.PutElement(0, com::Query<IUnknown>(enter.Get())), S_OK);
        EXPECT_EQ(trigger->SetWindowTitle(Text(L"Error").Get(), 0), S_OK);
        EXPECT_EQ(scenario->SetPostRecoveryOption(2), S_OK);
        EXPECT_EQ(scenario->SetTrigger(trigger.Get()), S_OK);
        EXPECT_EQ(scenario->SetOperations(operations.Get()), S_OK);
        EXPECT_EQ(scenario->SetDescription(Text(description).Get()), S_OK);
        return scenario;
    }
    // A file of scenarios, each described as "About <name>".
    std::wstring MakeFile(const wchar_t* file, const Rows& names) const {
        const auto repository = Load({}, false);
        for (const std::wstring& name : names)
            EXPECT_EQ(repository->AddScenario(Scenario(L"About " + name).Get(), Text(name).Get(), 0), S_OK);
        EXPECT_EQ(repository->Save(Text(Path(file)).Get()), S_OK);
        return Path(file);
    }
    Rows NamesIn(const std::wstring& path) const {
        Rows names;
        com::Ptr<IScenarioEnumerator> enumerator;
        EXPECT_EQ(Load(path, true)->GetScenarioEnumerator(enumerator.GetAddressOf()), S_OK);
        for (com::Bstr name; enumerator && enumerator->Next(name.Put()) == S_OK;)
            names.push_back(name.Text());
        return names;
    }

    // The user's steps.
    static void ChooseFile(UserScreen& screen, const wchar_t* caption, const std::wstring& path) {
        constexpr int kFileName = 0x47C;  // the number of the list, of the box in it and of the edit in that
        const HWND dialog = screen.WaitForWindow(caption);
        screen.Enter(screen.Control(screen.Control(dialog, kFileName), kFileName), kFileName, path);
        LeaveFileDialog(screen, dialog, IDOK);
    }
    // Its list has the number of its button.
    static void LeaveFileDialog(UserScreen& screen, HWND dialog, int button) {
        screen.Do([=] { PostMessageW(GetDlgItem(dialog, button), BM_CLICK, 0, 0); });
        screen.WaitUntilClosed(dialog);
    }
    static void OpenFile(UserScreen& screen, HWND manager, const std::wstring& path) {
        screen.Press(manager, IDC_MANAGER_OPEN);
        ChooseFile(screen, L"Open Recovery File", path);
        screen.WaitUntil("the file is open", [&] { return screen.Text(manager, IDC_MANAGER_FILE) == path; });
    }
    static void DropMenu(UserScreen& screen, HWND manager, int button) {
        screen.Do([=] { SetFocus(GetDlgItem(manager, button)); });
        screen.Keys({VK_F4});
    }
    static void SaveAs(UserScreen& screen, HWND manager, const std::wstring& path) {
        DropMenu(screen, manager, IDC_MANAGER_SAVE);
        screen.ChooseMenu(L"Save As");
        ChooseFile(screen, L"Save Recovery File", path);
    }
    static Rows Names(UserScreen& screen, HWND manager) { return screen.RowsOf(manager, IDC_MANAGER_LIST); }
    static std::wstring Chosen(UserScreen& screen, HWND manager) {
        const Rows chosen = screen.Chosen(manager, IDC_MANAGER_LIST);
        return chosen.empty() ? L"" : chosen.front();
    }
    // From the welcome page to the summary, with another name on the way.
    static void WalkThroughWizard(UserScreen& screen, HWND wizard, const wchar_t* name) {
        while (screen.PageTitle(wizard) != L"Name and Description") {
            if (screen.PageTitle(wizard) == L"Recovery Operations")
                screen.Check(wizard, IDC_OPERATION_LIST_ANOTHER, false);
            screen.Next(wizard);
        }
        screen.Enter(wizard, IDC_SCEN_NAME, name);
        screen.Next(wizard);
    }
    // New Scenario, Edit, Properties, Copy, Paste, Delete: a capital for each that can be pressed.
    static std::wstring Toolbar(UserScreen& screen, HWND manager) {
        std::wstring states;
        int control = IDC_MANAGER_NEW_SCENARIO;
        for (const wchar_t letter : {L'n', L'e', L'p', L'c', L'v', L'd'})
            states += screen.IsEnabled(manager, control++) ? static_cast<wchar_t>(letter - 0x20) : letter;
        return states;
    }

    Rack rack_;
    std::shared_ptr<RecordedOptions::Values> options_ = std::make_shared<RecordedOptions::Values>();
    std::filesystem::path folder_;
};

}  // namespace recoveryui::test
