#include "settings/ScenarioCalls.h"

#include "com/Create.h"
#include "com/SafeArray.h"
#include "model/Repository.h"
#include "shell/Rack.h"

namespace recoveryui::settings {
namespace {

// The names in an array of strings of one dimension; nothing for any other value.
std::optional<std::vector<std::wstring>> NamesIn(const VARIANT& value) {
    if (value.vt != (VT_ARRAY | VT_BSTR)) return std::nullopt;
    com::CVtlSafeArray<BSTR> array;
    if (FAILED(SafeArrayCopy(value.parray, array.Put())) || FAILED(array.Verify())) return std::nullopt;
    std::vector<std::wstring> names;
    com::Check(array.ForEach([&](const com::Bstr& name) { names.push_back(name.Text()); }));
    return names;
}

}  // namespace

std::optional<ChosenScenarios> AskForScenarios(IObjectRack* rack) {
    com::Ptr<IRecoveryAddDlg> dialog;
    com::Check(com::Create(L"Vantrel.RecoveryAddDlg", dialog));
    com::Check(shell::HandRack(dialog.Get(), rack));
    if (dialog->DoModal() != S_OK) return std::nullopt;
    com::Bstr file;
    com::Variant names;
    com::Check(dialog->get_FilePath(file.Put()));
    com::Check(dialog->get_ScenariosNames(names.Put()));
    auto known = NamesIn(names.Get());
    if (!known) return std::nullopt;
    return ChosenScenarios{file.Text(), std::move(*known)};
}

void ShowProperties(IObjectRack* rack, const model::ScenarioAssociation& shown) {
    // The host may have the list read anew while it is called.
    const std::wstring file(shown.file), name(shown.name);
    model::Repository repository;
    com::Ptr<IUnknown> scenario;
    com::Check(model::Repository::Create(rack, repository));
    com::Check(repository.Load(file, true));
    com::Check(repository.Scenario(name, scenario));
    com::Ptr<IScenarioProperties> sheet;
    com::Check(com::Create(L"Vantrel.ScenarioProperties", sheet));
    com::Check(shell::HandRack(sheet.Get(), rack));
    com::Check(sheet->DoModal(scenario.Get(), com::Bstr(file).Get(), com::Bstr(name).Get()));
}

}  // namespace recoveryui::settings
