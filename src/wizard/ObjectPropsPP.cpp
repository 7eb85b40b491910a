#include "wizard/ObjectPropsPP.h"

#include <commctrl.h>

#include "com/Create.h"
#include "model/ObjectHierarchy.h"
#include "ui/Messages.h"
#include "ui/Window.h"
#include "wizard/EditPropertiesDlg.h"

namespace recoveryui::wizard {
namespace {

constexpr int kNoRow = -1;

size_t CheckedProperties(IDispatch* member) {
    const auto properties = model::PropertiesOf(com::Query<ITestObject>(member).Get());
    size_t checked = 0;
    for (const auto& property : properties) checked += property.isChecked;
    // A member without properties has nothing to check, and cannot be asked for it.
    return properties.empty() ? 1 : checked;
}

}  // namespace

ObjectPropsPP::ObjectPropsPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_OBJECT_PROPS, true) {}

void ObjectPropsPP::OnInit() {
    WizardPPBase::OnInit();
    grid_.SetUp(Item(IDC_OBJECT_PROPS_GRID), model::PropertyGrid::Use::Check);
}

void ObjectPropsPP::OnActivate() {
    auto chain = model::FromArray(State().objectHierarchy);
    if (!chain.empty() && !members_.empty() && chain.back().Get() == members_.back().Get()) return;
    editPending_ = false;
    members_ = std::move(chain);
    {
        Muted muted(*this);
        Tree().Show(members_);
    }
    ShowMember();
}

com::Ptr<ITestObject> ObjectPropsPP::SelectedMember() const {
    const auto selected = Tree().Selected();
    if (!selected || *selected >= members_.size()) return nullptr;
    return com::Query<ITestObject>(members_[*selected].Get());
}

void ObjectPropsPP::ShowMember() {
    {
        Muted muted(*this);
        grid_.Show(SelectedMember().Get(), model::PropertyGrid::Rows::Identifying);
        grid_.List().Select(grid_.At(0) ? 0 : kNoRow);
    }
    ShowRow();
}

void ObjectPropsPP::ShowRow() {
    Muted muted(*this);
    editedRow_ = grid_.List().Selected();
    editPending_ = false;
    const model::ObjectProperty* property = grid_.At(editedRow_);
    const auto text = property ? model::TextOfValue(property->value) : std::nullopt;
    const HWND value = Item(IDC_OBJECT_PROPS_VALUE), regex = Item(IDC_OBJECT_PROPS_REGEX);
    // What is no simple value shows in the grid that it is none.
    ui::SetText(value, text.value_or(property ? grid_.List().Text(editedRow_, 1) : std::wstring()));
    ui::SetChecked(regex, text && property->isRegex);
    ui::Enable(value, text.has_value());
    ui::Enable(regex, text.has_value());
    shownValue_ = ui::TextOf(value);
}

HRESULT ObjectPropsPP::CommitEdit() {
    const model::ObjectProperty* property = editPending_ ? grid_.At(editedRow_) : nullptr;
    if (!property) return S_OK;
    const bool isRegex = ui::IsChecked(Item(IDC_OBJECT_PROPS_REGEX));
    const std::wstring text = ui::TextOf(Item(IDC_OBJECT_PROPS_VALUE));
    const HRESULT hr = grid_.WriteValue(
        editedRow_,
        text == shownValue_ ? property->value : model::ValueFromText(text, property->value, isRegex),
        isRegex);
    if (FAILED(hr)) return hr;
    editPending_ = false;
    shownValue_ = text;
    return S_OK;
}

bool ObjectPropsPP::OnCommand(const ui::Command& command) {
    switch (command.id) {
        case IDC_OBJECT_PROPS_VALUE:
            if (command.code == EN_CHANGE) editPending_ = true;
            return true;
        case IDC_OBJECT_PROPS_REGEX:
            if (command.code == BN_CLICKED) editPending_ = true;
            return true;
        case IDC_OBJECT_PROPS_ADD_REMOVE:
            if (command.code == BN_CLICKED) OnAddRemove();
            return true;
        default: return WizardPPBase::OnCommand(command);
    }
}

bool ObjectPropsPP::OnNotify(NMHDR& header, LRESULT& answer) {
    if (header.idFrom == IDC_OBJECT_PROPS_TREE && header.code == TVN_SELCHANGEDW) {
        // A value that the object refuses is shown as the object has it, here and below.
        [[maybe_unused]] const HRESULT hr = CommitEdit();
        ShowMember();
        return true;
    }
    if (header.idFrom == IDC_OBJECT_PROPS_GRID && header.code == LVN_ITEMCHANGED) {
        OnRowChanged(reinterpret_cast<NMLISTVIEW&>(header));
        return true;
    }
    return WizardPPBase::OnNotify(header, answer);
}

void ObjectPropsPP::OnRowChanged(const NMLISTVIEW& change) {
    if (model::PropertyGrid::IsTick(change)) com::Check(grid_.WriteTick(change.iItem));
    if (grid_.List().Selected() == editedRow_) return;
    [[maybe_unused]] const HRESULT hr = CommitEdit();
    ShowRow();
}

void ObjectPropsPP::OnAddRemove() {
    const auto member = SelectedMember();
    if (!State().rack || !member) return;
    com::Check(CommitEdit());
    if (EditPropertiesDlg(member.Get(), State().rack.Get()).ShowModal(Sheet()) == IDOK) ShowMember();
}

std::optional<size_t> ObjectPropsPP::Unidentified() const {
    std::vector<size_t> checked;
    for (const auto& member : members_) checked.push_back(CheckedProperties(member.Get()));
    return model::FirstUnidentified(checked);
}

Leave ObjectPropsPP::OnNext() {
    com::Check(CommitEdit());
    if (const auto member = Unidentified()) {
        Tree().Select(*member);
        ui::ShowMessage(Window(), IDS_PROPERTY_MUST_BE_CHECKED);
        return Leave::Stay;
    }
    return MakeTrigger();
}

Leave ObjectPropsPP::MakeTrigger() {
    if (!State().rack) return Leave::Stay;
    com::Ptr<IObjectRackClient> client;
    com::Check(com::Create(L"Vantrel.ObjectStateRecoveryTrigger", client));
    com::Check(client->SetRack(State().rack.Get()));

    const auto trigger = com::Query<IObjectStateRecoveryTrigger>(client.Get());
    const auto& hierarchy = State().objectHierarchy;
    if (!trigger || hierarchy.Count() == 0) return Leave::Stay;
    com::Variant clicked;
    com::Check(hierarchy.GetElement(hierarchy.UpperBound(), &clicked));
    const auto object = com::Query<ITestObject>(clicked.Object());
    if (!object) return Leave::Stay;
    com::Check(trigger->SetTestObject(object.Get()));
    com::Check(trigger->SetObjectStateOption(0));
    return TakeTrigger(trigger.Get());
}

}  // namespace recoveryui::wizard
