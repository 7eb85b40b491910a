// The choices of the click-or-press page and what each of them makes usable.
#pragma once

#include <string>
#include <vector>

namespace recoveryui::wizard {

// In the order of the radio buttons.
enum class ClickChoice { Enter = 0, Escape = 1, ButtonLabel = 2, Keys = 3 };

struct ClickControls {
    bool labelList = false;
    bool pointingHand = false;
    bool hotKey = false;  // the field and its hint
    bool canAdvance = false;
};

ClickControls ControlsFor(ClickChoice choice, bool hasLabels);

// What the operation that clicks a button is told: the kind of its target, the method, and the method's
// second argument behind the label.
inline constexpr int kButtonTargetKind = 2;
inline constexpr const wchar_t* kButtonMethod =
    L"PseudoMethod_SubButton_EC782BF2-CCE6-4d77-AC31-14EC4C8AF2AC";
inline constexpr const wchar_t* kButtonAction = L"Click";

// The labels to offer for the captions of a window's buttons: without mnemonics and without empty ones.
std::vector<std::wstring> ButtonLabels(const std::vector<std::wstring>& captions);

}  // namespace recoveryui::wizard
