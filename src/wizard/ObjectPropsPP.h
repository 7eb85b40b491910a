#pragma once

#include <optional>
#include <string>

#include "model/ObjectTree.h"
#include "model/PropertyGrid.h"
#include "model/TestObjects.h"
#include "resources/ids.h"
#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Sets which properties, with which values, identify each member of the object's hierarchy. The members keep
// what is set here; Next makes a trigger of the last one.
class ObjectPropsPP final : public WizardPPBase {
public:
    explicit ObjectPropsPP(WizardPS& sheet);

private:
    void OnInit() override;
    void OnActivate() override;  // a hierarchy that has changed is shown anew
    bool OnCommand(const ui::Command& command) override;
    bool OnNotify(NMHDR& header, LRESULT& answer) override;
    Leave OnNext() override;

    model::ObjectTree Tree() const { return model::ObjectTree(Item(IDC_OBJECT_PROPS_TREE)); }
    com::Ptr<ITestObject> SelectedMember() const;
    void ShowMember();
    void ShowRow();
    void OnRowChanged(const NMLISTVIEW& change);
    // Writes what was typed for the row in the editor, if anything was.
    [[nodiscard]] HRESULT CommitEdit();
    void OnAddRemove();
    // The first member that no checked property identifies.
    std::optional<size_t> Unidentified() const;
    Leave MakeTrigger();

    model::ObjectChain members_;
    model::PropertyGrid grid_;
    int editedRow_ = -1;
    std::wstring shownValue_;  // as the edit box gives it back untouched
    bool editPending_ = false;
};

}  // namespace recoveryui::wizard
