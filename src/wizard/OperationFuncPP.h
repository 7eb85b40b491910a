#pragma once

#include <string>

#include "model/CMRUComboBox.h"
#include "wizard/FunctionControls.h"
#include "wizard/FunctionLibrary.h"
#include "wizard/FunctionText.h"
#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Asks for a library function to call: one that is there, or a new one that Finish writes to the library.
class OperationFuncPP final : public WizardPPBase {
public:
    explicit OperationFuncPP(WizardPS& sheet);

private:
    void OnInit() override;
    bool CanBeShown() const override;
    void OnActivate() override;
    bool OnCommand(const ui::Command& command) override;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) override;
    Leave OnNext() override;
    Leave OnBack() override;

    void BindRecentLibraries();
    std::wstring TypedPath() const;
    void Load();
    FunctionLibrary::Outcome OpenLibrary();
    void LoadIfChanged();
    void Browse();

    void ResetFunctions();
    void FillFunctions();
    int SelectedFunction() const;
    std::wstring TextOfFunction(int place) const;
    void Choose(FunctionMode mode);
    void ShowFunction();
    void OnNameTyped();
    void OnTextTyped();
    void Refresh();
    bool AcceptName(NewFunction& function);

    model::CMRUComboBox recent_;
    FunctionLibrary library_;
    std::wstring attempted_;  // the path that was loaded last, or could not be
    std::wstring fullPath_;   // the same library where it was found
    bool loaded_ = false;
    FunctionMode mode_ = FunctionMode::Select;
    Prototype prototype_;
    std::wstring newName_;
    std::wstring newText_;
};

}  // namespace recoveryui::wizard
