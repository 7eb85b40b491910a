// The base of every wizard page: picture, bold title, wizard buttons, ways back and on.
#pragma once

#include <optional>
#include <vector>

#include "ui/Handles.h"
#include "ui/PropertyPage.h"
#include "wizard/PageFlow.h"
#include "wizard/WizardButtons.h"
#include "wizard/WizardPS.h"

namespace recoveryui::wizard {

// Where Next or Back leads: to a page, or nowhere.
struct Leave {
    int page;

    static constexpr Leave To(int page) noexcept { return {page}; }
    static const Leave Stay;
};
inline constexpr Leave Leave::Stay{-1};

class WizardPPBase : public ui::PropertyPage {
protected:
    WizardPPBase(WizardPS& sheet, int templateId, bool canAdvance = false);

    WizardState& State() const noexcept { return sheet_.State(); }
    // Nothing without a trigger, and for one that does not say what it is.
    std::optional<model::TriggerKind> KindOfTrigger() const;
    bool CanAdvance() const noexcept { return canAdvance_; }
    // Refreshes the wizard buttons when the answer changes.
    void SetCanAdvance(bool canAdvance);
    void UpdateWizardButtons() const;

    // Pages that override OnInit call this one first.
    void OnInit() override;
    // A page that says no is not shown.
    virtual bool CanBeShown() const { return true; }
    // Each time the page is shown.
    virtual void OnActivate() {}
    virtual Leave OnNext() { return Leave::To(page_.next); }
    virtual Leave OnBack() { return Leave::To(page_.previous); }
    // True lets the wizard close.
    virtual bool OnFinish() { return false; }
    void OnHelp() override;

    // The page's own way on, for pages that decide first.
    Leave GoOn() const noexcept { return Leave::To(page_.next); }
    // Makes a new trigger the sheet's and goes on. Throws when it lacks the general interface.
    Leave TakeTrigger(IUnknown* trigger);
    // Appends a finished operation to the sheet's and goes on. Throws likewise.
    Leave AddOperation(IUnknown* operation);
    // Puts an icon of the module on a button, in a size given at 96 DPI.
    void SetButtonIcon(int control, int iconId, int size);

private:
    LRESULT OnSetActive() final;
    LRESULT OnWizardNext() final { return OnNext().page; }
    LRESULT OnWizardBack() final { return OnBack().page; }
    LRESULT OnWizardFinish() final { return OnFinish() ? 0 : kStay; }

    HWND NextFocus() const final;
    int EnterButton() const final { return DefaultButton(page_.position); }
    void OnDpiChanged() final;

    struct ButtonIcon {
        int control, iconId, size;
        ui::Icon icon;
    };
    void ShowIcon(ButtonIcon& button);
    // The picture and the bold title.
    void ShowFrame();

    WizardPS& sheet_;
    const Page& page_;
    bool canAdvance_;
    std::vector<ButtonIcon> icons_;
};

}  // namespace recoveryui::wizard
