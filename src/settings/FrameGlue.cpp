#include "settings/FrameGlue.h"

#include <commctrl.h>

#include <utility>

#include "support/ScopedFlag.h"
#include "ui/Messages.h"
#include "ui/ModuleState.h"
#include "ui/Window.h"

namespace recoveryui::settings {
namespace {

constexpr const wchar_t* kSettingsProperty = L"SettingsObjPtr";
constexpr const wchar_t* kGlueProperty = L"RecoveryUI.SettingsFrameGlue";  // one for a frame
constexpr UINT_PTR kSubclassId = 0;
constexpr WPARAM kSystemCommand = 0xFFF0;  // the low four bits are the system's own

using Globals = GlobalVariables;

// Posted behind the IDCANCEL into which a close turns; once it arrives, no IDCANCEL is that one.
UINT CloseIsOver() noexcept {
    static const UINT message = RegisterWindowMessageW(L"RecoveryUI.SettingsFrame.CloseIsOver");
    return message;
}

com::Ptr<ITestOptions> SettingsOf(HWND frame) {
    return com::Query<ITestOptions>(static_cast<IUnknown*>(GetPropW(frame, kSettingsProperty)));
}

FrameEvent CommandEvent(WPARAM wParam) noexcept {
    if (HIWORD(wParam) > 1) return FrameEvent::Other;  // neither a click nor an accelerator
    switch (LOWORD(wParam)) {
        case kFrameOk: return FrameEvent::Ok;
        case kFrameApply: return FrameEvent::Apply;
        case kFrameCancel: return FrameEvent::Cancel;
        default: return FrameEvent::Other;
    }
}

bool MayBeRefused(FrameEvent event) noexcept {
    return event == FrameEvent::Ok || event == FrameEvent::Apply || event == FrameEvent::Cancel ||
           event == FrameEvent::Close;
}

void EnableButton(HWND frame, int id, const std::optional<bool>& enabled) noexcept {
    const HWND button = GetDlgItem(frame, id);
    if (enabled && button) ui::Enable(button, *enabled);
}

}  // namespace

void FrameGlue::Install(HWND frame) {
    if (GetPropW(frame, kGlueProperty)) return;
    const std::shared_ptr<FrameGlue> glue(new FrameGlue(frame));
    if (!SetPropW(frame, kGlueProperty, glue.get())) return;
    if (SetWindowSubclass(frame, &FrameGlue::Procedure, kSubclassId, reinterpret_cast<DWORD_PTR>(glue.get())))
        glue->self_ = glue;
    else
        RemovePropW(frame, kGlueProperty);
}

LRESULT CALLBACK FrameGlue::Procedure(HWND, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                      DWORD_PTR object) noexcept {
    // A handler may see the frame's end, and with it this object's.
    const std::shared_ptr<FrameGlue> alive = reinterpret_cast<FrameGlue*>(object)->shared_from_this();
    return alive->Handle(message, wParam, lParam);
}

LRESULT FrameGlue::Handle(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    const HWND frame = frame_;
    if (message == CloseIsOver()) {
        isClosing_ = false;
        return 0;
    }
    const FrameEvent event = EventOf(message, wParam, lParam);
    FrameDecision decision;
    bool swallowed = false;
    // Whatever the settings object does, the frame gets its message.
    (void)com::Guarded([&] {
        const com::Ptr<ITestOptions> settings = SettingsOf(frame);
        decision = DecideOn(event, settings.Get());
        swallowed = Intercept(decision, settings.Get());
    });
    if (swallowed || !frame_) return 0;

    if (event == FrameEvent::FinalDestroy) {
        RemovePropW(frame, kGlueProperty);
        RemoveWindowSubclass(frame, &FrameGlue::Procedure, kSubclassId);
        frame_ = nullptr;
        self_.reset();
        return DefSubclassProc(frame, message, wParam, lParam);
    }
    isClosing_ = isClosing_ || event == FrameEvent::Close;
    const LRESULT result = DefSubclassProc(frame, message, wParam, lParam);
    if (!frame_) return result;
    if (event == FrameEvent::Close) PostMessageW(frame, CloseIsOver(), 0, 0);
    SetButtons(decision);
    return result;
}

FrameEvent FrameGlue::EventOf(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    switch (message) {
        case WM_NOTIFY:
            return reinterpret_cast<const NMHDR*>(lParam)->code == static_cast<UINT>(TCN_SELCHANGE)
                       ? FrameEvent::TabChange
                       : FrameEvent::Other;
        case WM_COMMAND: {
            const FrameEvent event = CommandEvent(wParam);
            return event == FrameEvent::Cancel && std::exchange(isClosing_, false) ? FrameEvent::ClosingCancel
                                                                                   : event;
        }
        case WM_SYSCOMMAND:
            return (wParam & kSystemCommand) == SC_CLOSE ? FrameEvent::Close : FrameEvent::Other;
        case WM_NCDESTROY: return FrameEvent::FinalDestroy;
        default: return FrameEvent::Other;
    }
}

// Without a settings object nothing is decided. One that sends the frame messages while it is being read is
// not read again for those.
FrameDecision FrameGlue::DecideOn(FrameEvent event, ITestOptions* settings) {
    if (isReading_ || !settings) return {.release = event == FrameEvent::FinalDestroy};
    const support::ScopedFlag reading(isReading_);
    const Globals values(settings);
    (void)values.IsSet(Globals::kAlreadyInit);
    FrameFlags flags;
    flags.dirty = values.IsSet(Globals::kDirty);
    flags.readOnlyMode = values.IsSet(Globals::kIsReadOnlyMode);
    if (MayBeRefused(event)) {
        flags.forceSORConfiguration = values.IsSet(Globals::kForceSORConfiguration);
        flags.wasSORConfigured = values.IsSet(Globals::kWasSORConfigured);
        flags.isSORTabActive = values.IsSet(Globals::kIsSORTabActive);
    }
    return Decide(event, flags);
}

bool FrameGlue::Intercept(const FrameDecision& decision, ITestOptions* settings) {
    if (decision.release) ReleaseSettings(settings);
    if (!settings) return false;
    const Globals values(settings);
    if (decision.allowApply) values.Write(Globals::kAllowApply, *decision.allowApply);
    if (decision.box == FrameBox::None) return decision.swallow;

    const ui::ModuleScope scope;
    const bool asks = decision.box == FrameBox::AskCancel;
    const std::wstring text = values.Text(asks ? Globals::kCancelQuestion : Globals::kApplyRefusal);
    const int answer =
        ui::ShowMessage(frame_, text, asks ? MB_OKCANCEL | MB_ICONWARNING : MB_OK | MB_ICONERROR);
    return IsSwallowed(decision, answer == IDOK);
}

void FrameGlue::SetButtons(const FrameDecision& decision) const noexcept {
    EnableButton(frame_, kFrameApply, decision.applyEnabled);
    EnableButton(frame_, kFrameOk, decision.okEnabled);
}

// The property owns one reference; the last value is written through another.
void FrameGlue::ReleaseSettings(ITestOptions* settings) const {
    if (auto* owned = static_cast<IUnknown*>(RemovePropW(frame_, kSettingsProperty))) owned->Release();
    if (settings) Globals(settings).Write(Globals::kAlreadyInit, 0);
}

}  // namespace recoveryui::settings
