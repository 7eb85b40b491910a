#include "objects/screen/HandGesture.h"

namespace tovarin {
namespace {
constexpr unsigned kLeft = 1, kRight = 2, kOther = 4, kEscape = 8;
}

bool HandGesture::Takes(HandInput input) {
    switch (input) {
        case HandInput::LeftDown: return Press(kLeft, Outcome::Pointed);
        case HandInput::LeftUp: return Release(kLeft);
        case HandInput::RightDown: return Press(kRight, Outcome::Cancelled);
        case HandInput::RightUp: return Release(kRight);
        case HandInput::OtherDown: return Press(kOther, Outcome::Pointing);
        case HandInput::OtherUp: return Release(kOther);
        case HandInput::EscapeDown: return Press(kEscape, Outcome::Cancelled);
        case HandInput::EscapeUp: return Release(kEscape);
        case HandInput::Else: break;
    }
    return false;
}

// The first decision stands.
bool HandGesture::Press(unsigned key, Outcome meaning) {
    if (!Decided()) outcome_ = meaning;
    held_ |= key;
    return true;
}

bool HandGesture::Release(unsigned key) {
    const bool ours = (held_ & key) != 0;
    held_ &= ~key;
    return ours;
}

}  // namespace tovarin
