// The conditions by which a pop-up window is recognised, as the page shows them.
#pragma once

#include <string>

namespace recoveryui::wizard {

struct PopupCondition {
    bool checked = false;  // also decides whether the edit box and its "Regular expression" box are enabled
    std::wstring value;    // with the line ends of an edit box
    bool isRegex = false;
};

struct PopupConditions {
    PopupCondition title;
    PopupCondition text;

    // Whether Next is allowed. Blanks count as a value.
    bool Complete() const;

    // The text's value as a trigger stores it. The title is stored as it stands.
    std::wstring StoredText() const;
};

// For a page without a pop-up trigger to start from.
PopupConditions FreshConditions();

// A condition read from a trigger: an empty value means that it was never set. Only the text has its line
// ends converted.
PopupCondition TitleOfTrigger(const std::wstring& title, bool isRegex);
PopupCondition TextOfTrigger(const std::wstring& text, bool isRegex);

// What pointing at a window gives.
PopupConditions CapturedConditions(const std::wstring& title, const std::wstring& text);

}  // namespace recoveryui::wizard
