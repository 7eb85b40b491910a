#include "wizard/ClickChoice.h"

namespace recoveryui::wizard {
namespace {

// "&" marks the mnemonic behind it; "&&" stands for the character itself.
std::wstring WithoutMnemonic(const std::wstring& caption) {
    std::wstring label;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == L'&' && ++i == caption.size()) break;
        label += caption[i];
    }
    return label;
}

}  // namespace

ClickControls ControlsFor(ClickChoice choice, bool hasLabels) {
    switch (choice) {
        case ClickChoice::Enter:
        case ClickChoice::Escape: break;
        case ClickChoice::ButtonLabel:
            return {.labelList = hasLabels, .pointingHand = true, .hotKey = false, .canAdvance = hasLabels};
        case ClickChoice::Keys:
            return {.labelList = false, .pointingHand = false, .hotKey = true, .canAdvance = true};
    }
    return {.labelList = false, .pointingHand = false, .hotKey = false, .canAdvance = true};
}

std::vector<std::wstring> ButtonLabels(const std::vector<std::wstring>& captions) {
    std::vector<std::wstring> labels;
    for (const std::wstring& caption : captions) {
        std::wstring label = WithoutMnemonic(caption);
        if (!label.empty()) labels.push_back(std::move(label));
    }
    return labels;
}

}  // namespace recoveryui::wizard
