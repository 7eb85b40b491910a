#include "proof/Scene.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "host/store_samples.h"

namespace recoveryui::proof {
namespace {

namespace fs = std::filesystem;

std::wstring OfProcess(const wchar_t* name) {
    return name + std::to_wstring(GetCurrentProcessId());
}

}  // namespace

Scene::Scene()
    : branch_(OfProcess(L"Software\\Tovarin\\Proof ")),
      folder_(fs::temp_directory_path() / OfProcess(L"proof ")) {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    const auto locator = New<IFileLocator>(L"Tovarin.FileLocator");
    com::Check(com::Query<IFileLocatorFolders>(locator.Get())->SetTestFolder(com::Bstr(folder_).Get()));
    rack_.Put(L"TestOptions", settings_.Get())
        .Put(L"RACK_FILE_LOCATOR", locator.Get())
        .Put(L"RecordMgr", L"Tovarin.RecordMgr")
        .Put(L"HostApplication", L"Tovarin.HostApplication")
        .Put(L"TovPluginMgrObject", L"Tovarin.PluginMgr");
}

Scene::~Scene() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

std::wstring Scene::Write(const std::wstring& name, const std::string& bytes) const {
    std::ofstream(Path(name).c_str(), std::ios::binary) << bytes;
    return Path(name);
}

std::wstring Scene::Read(const std::wstring& path) {
    std::ifstream file(path.c_str(), std::ios::binary);
    if (!file) return L"no file";
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    return std::wstring(bytes.begin(), bytes.end());
}

std::wstring Scene::WriteEveryKind(const std::wstring& name) const {
    auto scenarios = tovarin::store::OneOfEverything();
    scenarios.pop_back();  // the unfinished one
    const tovarin::store::Operation function = tovarin::store::CallFunction{L"F", L"C:\\l.vbs", 1};
    scenarios[2].scenario.trigger = tovarin::store::ErrorTrigger{static_cast<std::int32_t>(0x80040202)};
    for (const size_t bare : {2, 3}) scenarios[bare].scenario.operations = {function};
    return Write(name, tovarin::store::TextOfStore(scenarios));
}

com::Ptr<IRecoveryRepository> Scene::Load(const std::wstring& path) const {
    const auto repository = New<IRecoveryRepository>(L"Vantrel.RecoveryRepository");
    rack_.GiveTo(repository.Get());
    com::Check(repository->Load(com::Bstr(path).Get(), path.empty() ? VARIANT_FALSE : VARIANT_TRUE));
    return repository;
}

com::Ptr<IUnknown> Scene::Scenario(const std::wstring& file, const wchar_t* name) const {
    com::Ptr<IUnknown> scenario;
    com::Check(Load(file)->GetScenario(com::Bstr(name).Get(), scenario.GetAddressOf()));
    return scenario;
}

std::wstring Scene::Describe(IUnknown* scenario, const std::wstring& name) const {
    if (!scenario) return L"no scenario";
    const auto repository = Load({});
    if (FAILED(repository->AddScenario(scenario, com::Bstr(name).Get(), 0)) ||
        FAILED(repository->Save(com::Bstr(Path(L"described.trs")).Get())))
        return L"cannot be stored";
    return Read(Path(L"described.trs"));
}

std::wstring Scene::Options() const {
    std::wstring text;
    for (const wchar_t* name : {L"RecoveryScenarios", L"RecoveryDefScenarios", L"RecoveryActivation",
                                L"RecoveryActivationMode", L"RecoveryDefActivationMode"})
        text += std::wstring(name) + L"=" + settings_.Stored(name) + L"\n";
    return text;
}

}  // namespace recoveryui::proof
