// The base of the properties sheet's pages: they show, people can select and copy, nothing changes.
#pragma once

#include <string>

#include "RecoveryUI.h"
#include "com/Ptr.h"
#include "ui/PropertyPage.h"

namespace recoveryui::settings {

class PropertiesPage : public ui::PropertyPage {
protected:
    PropertiesPage(int templateId, IObjectRack* rack) noexcept;

    IObjectRack* Rack() const noexcept { return rack_.Get(); }
    void SetItemText(int id, const std::wstring& text) const;
    // Of an edit box without a border: a label that can be copied.
    void SetLabelText(int id, const std::wstring& text) const;
    void SetItemChecked(int id, bool checked) const;

    bool OnNotify(NMHDR& header, LRESULT& answer) override;

private:
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) override;
    void OnHelp() override;
    // Nothing is to be done here: the tabs come first, and no text is selected.
    HWND FirstFocus() const override;

    com::Ptr<IObjectRack> rack_;
};

}  // namespace recoveryui::settings
