#pragma once

#include <windows.h>

#include <memory>

#include "com/Module.h"
#include "settings/FrameProtocol.h"
#include "settings/GlobalVariables.h"

namespace recoveryui::settings {

// The frame's buttons, by the numbers that property sheets use.
inline constexpr int kFrameOk = IDOK;
inline constexpr int kFrameCancel = IDCANCEL;
inline constexpr int kFrameApply = 0x3021;

// Stands in front of the settings frame's window procedure. The rules are FrameProtocol's. It outlives the
// page and belongs to the frame: it goes, and lets the module go, with the frame's last message.
class FrameGlue : public std::enable_shared_from_this<FrameGlue> {
public:
    // A frame that has its glue keeps it.
    static void Install(HWND frame);

private:
    // cppcheck-suppress uninitMemberVarPrivate ; it takes a function for a member
    explicit FrameGlue(HWND frame) noexcept : frame_(frame) {}

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR object) noexcept;
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    FrameEvent EventOf(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    FrameDecision DecideOn(FrameEvent event, ITestOptions* settings);
    // What comes before the frame's own handling; true when that must not come at all.
    bool Intercept(const FrameDecision& decision, ITestOptions* settings);
    void SetButtons(const FrameDecision& decision) const noexcept;
    void ReleaseSettings(ITestOptions* settings) const;

    HWND frame_;  // null once it is gone
    bool isReading_ = false;
    bool isClosing_ = false;  // the close box was let through; its own IDCANCEL is still to come
    std::shared_ptr<FrameGlue> self_;
    com::LiveObject live_;
};

}  // namespace recoveryui::settings
