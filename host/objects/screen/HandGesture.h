// What the buttons and keys mean while the pointing hand is out.
#pragma once

namespace tovarin {

enum class HandInput { LeftDown, LeftUp, RightDown, RightUp, OtherDown, OtherUp, EscapeDown, EscapeUp, Else };

// A left click points, a right click or Escape gives up. It is over when everything that was pressed
// meanwhile is released, so that no release reaches anybody either.
class HandGesture {
public:
    enum class Outcome { Pointing, Pointed, Cancelled };

    // False for what goes its usual way: turns of the wheel, other keys, and the release of what was
    // pressed before the hand came out.
    bool Takes(HandInput input);
    // Pointing until it is over.
    Outcome Result() const { return held_ == 0 ? outcome_ : Outcome::Pointing; }
    // Nothing that follows changes the outcome.
    bool Decided() const { return outcome_ != Outcome::Pointing; }

private:
    bool Press(unsigned key, Outcome meaning);
    bool Release(unsigned key);

    Outcome outcome_ = Outcome::Pointing;
    unsigned held_ = 0;
};

}  // namespace tovarin
