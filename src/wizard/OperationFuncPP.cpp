#include "wizard/OperationFuncPP.h"

#include <new>

#include "com/Create.h"
#include "model/FileDialog.h"
#include "model/FileLocator.h"
#include "model/FileNames.h"
#include "model/TestOptions.h"
#include "resources/ids.h"
#include "support/Text.h"
#include "ui/EditKeys.h"
#include "ui/Messages.h"
#include "ui/Strings.h"
#include "ui/Window.h"
#include "wizard/FunctionName.h"

namespace recoveryui::wizard {
namespace {

// Posted: a library that cannot be loaded opens a message box, which no notification may wait for.
constexpr UINT kLoad = WM_APP + 61;
constexpr UINT kLoadIfChanged = WM_APP + 62;

}  // namespace

OperationFuncPP::OperationFuncPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_OPERATION_FUNC) {}

void OperationFuncPP::OnInit() {
    WizardPPBase::OnInit();
    const HWND combo = Item(IDC_FUNC_LIBRARY);
    recent_.Attach(combo);
    ui::CatchEnter(combo, kLoad);
    AddTip(IDC_FUNC_BROWSE, IDS_TIP_BROWSE);
    SendMessageW(Item(IDC_FUNC_TEXT), EM_SETLIMITTEXT, 0, 0);
    CheckDlgButton(Window(), IDC_FUNC_SELECT, BST_CHECKED);
    if (library_.CreateParser()) BindRecentLibraries();
}

void OperationFuncPP::BindRecentLibraries() {
    if (const auto key = model::RecentListsKey(State().rack.Get()))
        recent_.LoadMRU(HKEY_CURRENT_USER, *key, model::options::kLibrariesRecent, model::kRecentMaximum);
}

bool OperationFuncPP::CanBeShown() const {
    return KindOfTrigger().has_value();
}

void OperationFuncPP::OnActivate() {
    ResetFunctions();
    ui::SetText(Item(IDC_FUNC_PROTOTYPE), ui::LoadText(IDS_PROTOTYPE_LABEL) + prototype_.head);
    Refresh();
    if (!TypedPath().empty()) PostMessageW(Window(), kLoad, 0, 0);
}

std::wstring OperationFuncPP::TypedPath() const {
    return ui::TextOf(Item(IDC_FUNC_LIBRARY));
}

bool OperationFuncPP::OnCommand(const ui::Command& command) {
    switch (command.id) {
        case IDC_FUNC_LIBRARY:
            if (command.code == CBN_SELENDOK || command.code == CBN_SELCHANGE ||
                command.code == CBN_KILLFOCUS)
                PostMessageW(Window(), kLoadIfChanged, 0, 0);
            return true;
        case IDC_FUNC_BROWSE:
            if (command.code == BN_CLICKED) Browse();
            return true;
        case IDC_FUNC_SELECT:
        case IDC_FUNC_DEFINE:
            if (command.code == BN_CLICKED)
                Choose(command.id == IDC_FUNC_DEFINE ? FunctionMode::Define : FunctionMode::Select);
            return true;
        case IDC_FUNC_LIST:
            if (command.code == CBN_SELCHANGE) Choose(FunctionMode::Select);
            return true;
        case IDC_FUNC_NAME:
            if (command.code == EN_CHANGE) OnNameTyped();
            return true;
        case IDC_FUNC_TEXT:
            if (command.code == EN_CHANGE) OnTextTyped();
            return true;
        default: return WizardPPBase::OnCommand(command);
    }
}

bool OperationFuncPP::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) {
    if (message != kLoad && message != kLoadIfChanged)
        return WizardPPBase::OnMessage(message, wParam, lParam, answer);
    message == kLoad ? Load() : LoadIfChanged();
    // What is selected in a box without the focus looks like something to type over.
    const HWND combo = Item(IDC_FUNC_LIBRARY);
    if (!IsChild(combo, GetFocus())) SendMessageW(combo, CB_SETEDITSEL, 0, MAKELPARAM(-1, 0));
    return true;
}

// Not for somebody who walks through the open list, has left the page, or is about to cancel.
void OperationFuncPP::LoadIfChanged() {
    const bool choosing = SendMessageW(Item(IDC_FUNC_LIBRARY), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
    if (choosing || !IsWindowVisible(Window()) || GetFocus() == GetDlgItem(Sheet(), IDCANCEL)) return;
    if (TypedPath() != attempted_) Load();
}

void OperationFuncPP::Load() {
    attempted_ = TypedPath();
    ResetFunctions();
    if (attempted_.empty()) return;
    const FunctionLibrary::Outcome outcome = OpenLibrary();
    Refresh();
    if (outcome == FunctionLibrary::Outcome::NotFound)
        ui::ShowMessage(Window(), ui::FormatText(IDS_FILE_NOT_FOUND, {fullPath_}));
    if (outcome == FunctionLibrary::Outcome::NotAScript) ui::ShowMessage(Window(), IDS_LIBRARY_INVALID);
}

FunctionLibrary::Outcome OperationFuncPP::OpenLibrary() {
    const ui::WaitCursor wait;
    Muted muted(*this);
    fullPath_ = model::FullPath(State().rack.Get(), attempted_);
    const bool absolute = !model::DrivePart(attempted_).empty();
    const auto outcome = library_.Open(absolute ? attempted_ : fullPath_);
    if (outcome != FunctionLibrary::Outcome::Loaded) return outcome;
    recent_.AddString(attempted_);
    loaded_ = true;
    FillFunctions();
    Choose(ModeAfterLoading(SelectedFunction() >= 0));
    return outcome;
}

void OperationFuncPP::Browse() {
    const auto chosen = model::AskForFile(
        {.filter = ui::LoadText(IDS_LIBRARY_FILTER), .caption = ui::LoadText(IDS_LIBRARY_OPEN_CAPTION)});
    if (!chosen) return;
    ui::SetText(Item(IDC_FUNC_LIBRARY), model::StoredPath(State().rack.Get(), *chosen));
    Load();
}

void OperationFuncPP::ResetFunctions() {
    library_.Close();
    loaded_ = false;
    // Here rather than once per visit: a page that could not be shown whole still loads libraries.
    prototype_ = PrototypeFor(static_cast<std::int32_t>(KindOfTrigger().value())).value();
    newName_ = kDefaultFunctionName;
    newText_ = FunctionTemplate(prototype_);
    SendMessageW(Item(IDC_FUNC_LIST), CB_RESETCONTENT, 0, 0);
    ShowFunction();
}

// The library's own functions, then those that wait to be written to it.
void OperationFuncPP::FillFunctions() {
    const HWND list = Item(IDC_FUNC_LIST);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    for (const auto& names : {library_.Names(), State().newFunctions.NamesIn(fullPath_)}) {
        for (const std::wstring& name : names)
            SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    }
    SendMessageW(list, CB_SETCURSEL, 0, 0);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

int OperationFuncPP::SelectedFunction() const {
    return static_cast<int>(SendMessageW(Item(IDC_FUNC_LIST), CB_GETCURSEL, 0, 0));
}

std::wstring OperationFuncPP::TextOfFunction(int place) const {
    const auto function = static_cast<size_t>(place);
    const size_t own = library_.Names().size();
    if (function < own) return library_.TextOf(function);
    const auto pending = State().newFunctions.NamesIn(fullPath_);
    return State().newFunctions.Find(fullPath_, pending.at(function - own))->text;
}

void OperationFuncPP::Choose(FunctionMode mode) {
    if (!loaded_) return;
    mode_ = mode;
    CheckRadioButton(Window(), IDC_FUNC_SELECT, IDC_FUNC_DEFINE,
                     mode == FunctionMode::Define ? IDC_FUNC_DEFINE : IDC_FUNC_SELECT);
    ShowFunction();
    Refresh();
}

void OperationFuncPP::ShowFunction() {
    Muted muted(*this);
    const int selected = SelectedFunction();
    const bool existing = loaded_ && mode_ == FunctionMode::Select && selected >= 0;
    ui::SetText(Item(IDC_FUNC_NAME), existing ? ui::TextOf(Item(IDC_FUNC_LIST)) : newName_);
    ui::SetText(Item(IDC_FUNC_TEXT), existing ? TextOfFunction(selected) : newText_);
}

void OperationFuncPP::OnNameTyped() {
    if (!loaded_ || mode_ != FunctionMode::Define) return;
    std::wstring name = ui::TextOf(Item(IDC_FUNC_NAME));
    std::wstring text = RenameFunction(newText_, name);
    {
        Muted muted(*this);
        if (!ui::SetText(Item(IDC_FUNC_TEXT), text)) throw std::bad_alloc();
    }
    newText_ = std::move(text);
    newName_ = std::move(name);
    Refresh();
}

void OperationFuncPP::OnTextTyped() {
    if (!loaded_ || mode_ != FunctionMode::Define) return;
    newText_ = ui::TextOf(Item(IDC_FUNC_TEXT));
    Refresh();
}

void OperationFuncPP::Refresh() {
    const bool selected = SelectedFunction() >= 0;
    const FunctionControls controls = ControlsFor({.libraryLoaded = loaded_,
                                                   .hasFunctions = selected,
                                                   .mode = mode_,
                                                   .functionSelected = selected,
                                                   .newName = newName_,
                                                   .newText = newText_});
    ui::Enable(Item(IDC_FUNC_SELECT), controls.selectRadio);
    ui::Enable(Item(IDC_FUNC_DEFINE), controls.defineRadio);
    ui::Enable(Item(IDC_FUNC_LIST), controls.functionList);
    for (const int id : {IDC_FUNC_NAME, IDC_FUNC_TEXT}) {
        ui::Enable(Item(id), controls.nameAndText);
        SendMessageW(Item(id), EM_SETREADONLY, !controls.editable, 0);
    }
    SetCanAdvance(controls.canAdvance);
}

bool OperationFuncPP::AcceptName(NewFunction& function) {
    std::wstring name = support::TrimBlanks(function.name);
    if (JudgeFunctionName(name, library_.Names(), State().newFunctions, fullPath_) !=
        FunctionNameVerdict::Accepted) {
        ui::ShowMessage(Window(), IDS_FUNCTION_NAME_INVALID);
        ui::SelectAllText(Item(IDC_FUNC_NAME));
        return false;
    }
    if (name != function.name) function.text = RenameFunction(function.text, name);
    function.name = std::move(name);
    return true;
}

Leave OperationFuncPP::OnNext() {
    if (TypedPath() != attempted_) {
        // Nobody has seen yet what the library holds.
        Load();
        return Leave::Stay;
    }
    const bool defining = mode_ == FunctionMode::Define;
    // The text may still have the name before, if there was no memory when this one was typed.
    if (defining && ui::TextOf(Item(IDC_FUNC_NAME)) != newName_) OnNameTyped();
    if (!loaded_ || !CanAdvance()) return Leave::Stay;
    NewFunction function{attempted_, fullPath_, ui::TextOf(Item(IDC_FUNC_NAME)),
                         ui::TextOf(Item(IDC_FUNC_TEXT))};
    if (defining && !AcceptName(function)) return Leave::Stay;

    com::Ptr<IFunctionCallRecoveryAction> operation;
    com::Check(com::Create(L"Vantrel.FunctionCallRecoveryAction", operation));
    com::Check(operation->SetFunctionName(com::Bstr(function.name).Get()));
    // The file may have moved since it was loaded.
    function.fullPath = model::FullPath(State().rack.Get(), function.typedPath);
    com::Check(operation->SetLibraryPath(com::Bstr(function.fullPath).Get()));
    com::Check(operation->SetPrototypeMode(prototype_.mode));
    const Leave leave = AddOperation(operation.Get());
    if (defining) State().newFunctions.Add(std::move(function));
    library_.Close();
    return leave;
}

Leave OperationFuncPP::OnBack() {
    library_.Close();
    return WizardPPBase::OnBack();
}

}  // namespace recoveryui::wizard
