#include "model/CMRUComboBox.h"

#include <commctrl.h>

#include <optional>
#include <vector>

#include "com/Guard.h"

namespace recoveryui::model {
namespace {

constexpr WPARAM kFromStart = static_cast<WPARAM>(-1);

LPARAM Text(const std::wstring& text) {
    return reinterpret_cast<LPARAM>(text.c_str());
}

int Count(HWND combo) {
    return static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));
}

std::wstring Entry(HWND combo, int index) {
    const auto place = static_cast<WPARAM>(index);
    const LRESULT length = SendMessageW(combo, CB_GETLBTEXTLEN, place, 0);
    std::wstring text(length > 0 ? static_cast<size_t>(length) : 0, L'\0');
    if (length > 0) SendMessageW(combo, CB_GETLBTEXT, place, reinterpret_cast<LPARAM>(text.data()));
    return text;
}

// Empty for a value that is missing; nothing when it is there and cannot be read.
std::optional<std::wstring> ReadValue(HKEY key, const std::wstring& name) {
    DWORD size = 0;
    if (RegQueryValueExW(key, name.c_str(), nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS || size == 0)
        return std::wstring();
    std::wstring value(size / sizeof(wchar_t) + 1, L'\0');
    if (RegQueryValueExW(key, name.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(value.data()), &size) !=
        ERROR_SUCCESS)
        return std::nullopt;
    // Stored with its terminator, or by somebody else without one, or with half a character at its end.
    return std::wstring(value.c_str());
}

}  // namespace

CMRUComboBox::~CMRUComboBox() {
    if (combo_) RemoveWindowSubclass(combo_, &CMRUComboBox::Procedure, 0);
}

void CMRUComboBox::Attach(HWND combo) {
    combo_ = combo;
    SetWindowSubclass(combo, &CMRUComboBox::Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
}

bool CMRUComboBox::LoadMRU(HKEY parent, const std::wstring& keyPath, const std::wstring& valueName,
                           int maximum) {
    maximum_ = maximum;
    valueName_ = valueName;
    bound_ = false;
    key_ = {};
    HKEY key = nullptr;
    if (keyPath.empty() || RegOpenKeyExW(parent, keyPath.c_str(), 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS)
        return false;
    key_ = ui::RegistryKey(key);
    const auto value = ReadValue(key, valueName);
    if (!value) return false;
    SendMessageW(combo_, CB_RESETCONTENT, 0, 0);
    for (const std::wstring& entry : SplitEntries(*value, maximum)) {
        if (SendMessageW(combo_, CB_ADDSTRING, 0, Text(entry)) < 0) return false;
    }
    bound_ = true;
    return true;
}

MruState CMRUComboBox::StateFor(const std::wstring& text) const {
    return {Count(combo_), maximum_,
            static_cast<int>(SendMessageW(combo_, CB_FINDSTRING, kFromStart, Text(text)))};
}

int CMRUComboBox::CarryOut(const MruPlan& plan, const std::wstring& text) const {
    for (const int gone : {plan.deleteMatch, plan.deleteLast}) {
        if (gone != kNoEntry) SendMessageW(combo_, CB_DELETESTRING, static_cast<WPARAM>(gone), 0);
    }
    if (plan.insertAt == kNoEntry) return plan.result;
    const auto place = SendMessageW(combo_, CB_INSERTSTRING, static_cast<WPARAM>(plan.insertAt), Text(text));
    if (place >= 0) SendMessageW(combo_, CB_SETCURSEL, static_cast<WPARAM>(place), 0);
    return static_cast<int>(place);
}

int CMRUComboBox::AddString(const std::wstring& text) {
    if (!bound_) return static_cast<int>(SendMessageW(combo_, CB_ADDSTRING, 0, Text(text)));
    return CarryOut(PlanAddString(StateFor(text), text), text);
}

int CMRUComboBox::InsertString(int index, const std::wstring& text) {
    if (!bound_)
        return static_cast<int>(
            SendMessageW(combo_, CB_INSERTSTRING, static_cast<WPARAM>(index), Text(text)));
    return CarryOut(PlanInsertString(StateFor(text), index, text), text);
}

void CMRUComboBox::Save() const {
    if (!bound_) return;
    std::vector<std::wstring> entries;
    const int count = Count(combo_);
    entries.reserve(static_cast<size_t>(count));
    for (int index = 0; index < count; ++index) entries.push_back(Entry(combo_, index));
    const std::wstring value = JoinEntries(entries);
    RegSetValueExW(key_.Get(), valueName_.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                   static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

// The entries are still there when WM_DESTROY arrives.
LRESULT CALLBACK CMRUComboBox::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                         DWORD_PTR object) noexcept {
    auto* combo = reinterpret_cast<CMRUComboBox*>(object);
    if (message == WM_DESTROY) (void)com::Guarded([&] { combo->Save(); });
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, &CMRUComboBox::Procedure, id);
        combo->combo_ = nullptr;
        combo->bound_ = false;
        combo->key_ = {};
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace recoveryui::model
