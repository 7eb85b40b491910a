#include "wizard/SelectObjectPP.h"

#include "com/Create.h"
#include "model/Kinds.h"
#include "model/ObjectTree.h"
#include "resources/ids.h"
#include "support/HelpTopics.h"
#include "ui/Messages.h"
#include "ui/Strings.h"

namespace recoveryui::wizard {
namespace {
constexpr int kHandIconSize = 32;
}

SelectObjectPP::SelectObjectPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_SELECT_OBJECT) {}

void SelectObjectPP::OnInit() {
    WizardPPBase::OnInit();
    SetButtonIcon(IDC_SELECT_OBJECT_HAND, IDI_POINTING_HAND, kHandIconSize);
    AddTip(IDC_SELECT_OBJECT_HAND, IDS_TIP_POINTING_HAND);
    const auto object = ObjectOfTrigger();
    if (!object) return;
    const auto chain = model::ChainOf(object.Get());
    State().originalIdentification.Take(chain);
    Take(chain);
}

// Null when there is nothing to start from.
com::Ptr<IDispatch> SelectObjectPP::ObjectOfTrigger() const {
    long kind = 0;
    if (!State().trigger || FAILED(State().trigger->GetTriggerKind(&kind)) ||
        model::TriggerKindFrom(kind) != model::TriggerKind::ObjectState)
        return nullptr;
    const auto trigger = com::Query<IObjectStateRecoveryTrigger>(State().trigger.Get());
    com::Ptr<ITestObject> object;
    if (!trigger || FAILED(trigger->GetTestObject(object.GetAddressOf()))) return nullptr;
    return com::Query<IDispatch>(object.Get());
}

bool SelectObjectPP::OnCommand(const ui::Command& command) {
    if (command.id != IDC_SELECT_OBJECT_HAND || command.code != BN_CLICKED)
        return WizardPPBase::OnCommand(command);
    OnPointingHand();
    return true;
}

void SelectObjectPP::OnPointingHand() {
    const auto target = hand_.Point(Window(), State().rack.Get());
    if (!target) return;
    if (const auto object = ChooseObject(*target)) Take(model::ChainOf(object.Get()));
}

com::Ptr<IDispatch> SelectObjectPP::ChooseObject(const PointedAt& target) {
    const auto& candidates = target.objects;
    if (candidates.Count() == 0) {
        ui::ShowMessage(Window(), IDS_OBJECT_NOT_FOUND_AT_POINT);
        return nullptr;
    }
    com::Variant chosen;
    if (candidates.Count() == 1) {
        com::Check(candidates.GetElement(candidates.LowerBound(), &chosen));
    } else {
        chosen = AskWhichOne(candidates.Get());
        if (chosen.Type() == VT_EMPTY) return nullptr;
    }
    auto object = com::Query<IDispatch>(chosen.Object());
    if (!object) ui::ShowMessage(Window(), IDS_OBJECT_NOT_SUPPORTED);
    return object;
}

// Empty after Cancel.
com::Variant SelectObjectPP::AskWhichOne(SAFEARRAY* candidates) {
    com::Ptr<IObjectSelection> selection;
    com::Check(com::Create(L"Vantrel.ObjectSelection", selection));
    if (const auto client = com::Query<IObjectRackClient>(selection.Get()))
        com::Check(client->SetRack(State().rack.Get()));
    com::Check(selection->SetCaption(com::Bstr(ui::LoadText(IDS_OBJECT_SELECTION_CAPTION)).Get()));
    com::Check(selection->SetHelpTopic(com::Bstr(support::topics::kObjectSelection).Get()));
    com::Variant chosen;
    const HRESULT hr = selection->Choose(candidates, chosen.Put());
    com::Check(hr);
    return hr == S_OK ? std::move(chosen) : com::Variant();
}

void SelectObjectPP::Take(const model::ObjectChain& chain) {
    if (chain.empty()) return;
    State().objectHierarchy.Release();
    State().objectHierarchy = model::ToArray(chain);
    model::ObjectTree(Item(IDC_SELECT_OBJECT_TREE)).Show(chain);
    SetCanAdvance(true);
}

}  // namespace recoveryui::wizard
