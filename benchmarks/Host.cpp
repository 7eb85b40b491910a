#include "Host.h"

#include "Stage.h"
#include "com/Bstr.h"
#include "com/Variant.h"
#include "objects/store/StoreFormat.h"

namespace recoveryui::bench {
namespace {

constexpr const wchar_t* kKey = L"Software\\RecoveryUI Benchmarks";

std::wstring TempFolder() {
    std::wstring path(MAX_PATH + 1, L'\0');
    path.resize(GetTempPathW(static_cast<DWORD>(path.size()), path.data()));
    path += L"bench-" + std::to_wstring(GetCurrentProcessId());
    CreateDirectoryW(path.c_str(), nullptr);
    return path;
}

tovarin::store::Scenario MakeScenario(int number) {
    using namespace tovarin::store;
    Scenario scenario;
    scenario.postRecoveryOption = number % 5;
    scenario.description =
        L"Answers the message about the printer and goes on. \x2192 " + std::to_wstring(number);
    switch (number % 4) {
        case 0:
            scenario.trigger = PopUpTrigger{{L"Printer.*", 1}, {L"The printer is out of paper.", 0}, 3};
            break;
        case 1: scenario.trigger = ErrorTrigger{-2147220990}; break;
        case 2: scenario.trigger = CrashTrigger{1, {L"flights.exe", L"orders.exe"}}; break;
        default:
            scenario.trigger = ObjectStateTrigger{
                1, {{L"OK", {{L"enabled", {ValueType::Boolean, 1, 0, {}}, 0, 1}}}, {L"Login", {}}}};
    }
    scenario.operations.push_back(PressKeys{{0x0d}});
    scenario.operations.push_back(CallFunction{L"RecoverFromPrinter", L"C:\\Libraries\\recovery.qfl", 1});
    return scenario;
}

}  // namespace

Host::Host() : folder_(TempFolder()) {
    com::Check(com::Create(L"Tovarin.ObjectRack", rack_));
    const auto options = New<ITestOptions>(L"Tovarin.TestOptions");
    com::Check(com::Query<ITestFile>(options.Get())->SetSettingsRegistryPath(com::Bstr(kKey).Get()));
    com::Variant branch;
    com::Check(options->GetItem(com::Variant(L"ReplayRecovery").Get(), branch.Put()));
    branch_ = com::Query<ITestOptions>(branch.Object());
    const auto put = [&](const wchar_t* name, IUnknown* object) {
        com::Check(rack_->SetObject(com::Bstr(name).Get(), object));
    };
    put(L"TestOptions", options.Get());
    put(L"RACK_FILE_LOCATOR", New<IUnknown>(L"Tovarin.FileLocator").Get());
    put(L"RecordMgr", New<IUnknown>(L"Tovarin.RecordMgr").Get());
}

Host::~Host() {
    for (const std::wstring& file : files_) DeleteFileW(file.c_str());
    RemoveDirectoryW(folder_.c_str());
    RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
}

void Host::StoreRecords(const std::wstring& records) const {
    com::Check(branch_->SetOptionValue(com::Bstr(L"").Get(), com::Bstr(L"RecoveryScenarios").Get(),
                                       com::Variant(records).Get(), FALSE, TRUE, 0, 3, 0));
}

std::wstring Host::MakeFile(int scenarios) {
    const std::wstring path = folder_ + L"\\" + std::to_wstring(scenarios) + L".trs";
    const std::string text = TextOf(MakeScenarios(scenarios));
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    Require(WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr),
            "no file can be made");
    CloseHandle(file);
    files_.push_back(path);
    return path;
}

std::vector<tovarin::store::NamedScenario> MakeScenarios(int count) {
    std::vector<tovarin::store::NamedScenario> scenarios;
    scenarios.reserve(count);
    for (int i = 0; i < count; ++i)
        scenarios.push_back({L"Out of paper " + std::to_wstring(i), MakeScenario(i)});
    return scenarios;
}

std::string TextOf(const std::vector<tovarin::store::NamedScenario>& scenarios) {
    tovarin::store::StoreWriter writer;
    for (const auto& [name, scenario] : scenarios) writer.Add(name, scenario);
    return writer.Finish();
}

std::wstring MakeRecords(int count) {
    std::wstring text;
    for (int i = 0; i < count; ++i)
        text += L"C:\\Tests\\Recovery\\printer" + std::to_wstring(i / 100) + L".trs;Out of paper " +
                std::to_wstring(i) + L";1;1*";
    return text;
}

}  // namespace recoveryui::bench
