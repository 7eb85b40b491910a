#include "settings/FrameProtocol.h"

namespace recoveryui::settings {
namespace {

FrameDecision OnTabChange(const FrameFlags& flags) {
    FrameDecision decision;
    if (flags.dirty) decision.applyEnabled = true;
    if (flags.readOnlyMode) decision.applyEnabled = decision.okEnabled = false;
    return decision;
}

FrameDecision OnOkOrApply(const FrameFlags& flags) {
    FrameDecision decision{.allowApply = 1};
    if (flags.forceSORConfiguration && !flags.isSORTabActive && !flags.wasSORConfigured) {
        decision.box = FrameBox::RefuseApply;
        decision.swallow = true;
    }
    return decision;
}

FrameDecision OnLeaving(const FrameFlags& flags) {
    FrameDecision decision;
    if (flags.forceSORConfiguration && !flags.wasSORConfigured) {
        decision.box = FrameBox::AskCancel;
        decision.swallow = true;
    }
    return decision;
}

}  // namespace

FrameDecision Decide(FrameEvent event, const FrameFlags& flags) {
    switch (event) {
        case FrameEvent::TabChange: return OnTabChange(flags);
        case FrameEvent::Ok:
        case FrameEvent::Apply: return OnOkOrApply(flags);
        case FrameEvent::Cancel: {
            FrameDecision decision = OnLeaving(flags);
            decision.allowApply = 0;
            return decision;
        }
        case FrameEvent::Close: return OnLeaving(flags);
        case FrameEvent::FinalDestroy: return {.release = true};
        case FrameEvent::ClosingCancel:
        case FrameEvent::Other: break;
    }
    return {};
}

}  // namespace recoveryui::settings
