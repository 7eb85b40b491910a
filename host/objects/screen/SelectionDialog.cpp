#include "objects/screen/SelectionDialog.h"

#include <shellapi.h>
#include <windowsx.h>

#include "HostInterfaces.h"
#include "com/Automation.h"
#include "com/Guard.h"
#include "objects/Strings.h"
#include "objects/ids.h"

namespace tovarin {
namespace {

com::Ptr<IUnknown> ParentOf(IDispatch* object) {
    com::Variant parent;
    if (FAILED(com::GetProperty(object, L"parent", &parent))) return {};
    return com::Query<IUnknown>(parent.Object());
}

std::wstring NameOf(IDispatch* object) {
    com::Bstr name;
    const auto testObject = com::Query<ITestObject>(object);
    if (testObject && SUCCEEDED(testObject->GetDisplayName(name.Put())) && !name.View().empty())
        return name.Text();
    com::Variant text;
    if (SUCCEEDED(com::GetProperty(object, L"text", &text)) && !text.Text().empty())
        return std::wstring(text.Text());
    return LoadText(IDS_HOST_UNNAMED_OBJECT);
}

}  // namespace

SelectionDialog::SelectionDialog(const std::vector<com::Ptr<IDispatch>>& candidates, std::wstring caption,
                                 std::wstring topic, IObjectRack* rack)
    : candidates_(candidates), caption_(std::move(caption)), topic_(std::move(topic)), rack_(rack) {}

com::Ptr<IDispatch> SelectionDialog::Show() {
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_TREEVIEW_CLASSES};
    InitCommonControlsEx(&controls);
    const INT_PTR shown = DialogBoxParamW(com::Module::Instance(), MAKEINTRESOURCEW(IDD_OBJECT_SELECTION),
                                          GetActiveWindow(), Procedure, reinterpret_cast<LPARAM>(this));
    if (shown == -1) throw com::HResultError(HRESULT_FROM_WIN32(GetLastError()));
    com::Check(failure_);
    return choice_;
}

INT_PTR CALLBACK SelectionDialog::Procedure(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        reinterpret_cast<SelectionDialog*>(lParam)->window_ = window;
        SetWindowLongPtrW(window, DWLP_USER, lParam);
    }
    auto* const dialog = reinterpret_cast<SelectionDialog*>(GetWindowLongPtrW(window, DWLP_USER));
    if (!dialog) return FALSE;
    INT_PTR answer = FALSE;
    const HRESULT hr = com::Guarded([&] { answer = dialog->OnMessage(message, wParam, lParam); });
    if (FAILED(hr)) {
        dialog->failure_ = hr;
        EndDialog(window, IDCANCEL);
    }
    return answer;
}

INT_PTR SelectionDialog::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG: OnInit(); return FALSE;  // the focus has been set
        case WM_NOTIFY: return OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_HELP: ShowHelp(); return TRUE;
        case WM_COMMAND: break;
        default: return FALSE;
    }
    switch (LOWORD(wParam)) {
        case IDC_OBJECT_SELECTION_HELP: ShowHelp(); return TRUE;
        case IDOK: {
            const auto selected = TreeView_GetSelection(Tree());
            for (size_t index = 0; index < items_.size(); ++index) {
                if (selected && items_[index] == selected) choice_ = candidates_[index];
            }
            if (choice_) EndDialog(window_, IDOK);
            return TRUE;
        }
        case IDCANCEL: EndDialog(window_, IDCANCEL); return TRUE;
        default: return FALSE;
    }
}

HWND SelectionDialog::Tree() const {
    return GetDlgItem(window_, IDC_OBJECT_SELECTION_TREE);
}

void SelectionDialog::OnInit() {
    SetWindowTextW(window_, caption_.c_str());
    EnableWindow(GetDlgItem(window_, IDC_OBJECT_SELECTION_HELP), !topic_.empty());
    Fill();
    SetWindowSubclass(Tree(), TreeProcedure, 0, 0);  // ends with the tree
    SetFocus(Tree());
}

// Candidates come innermost first: read backwards, a parent comes before its children.
void SelectionDialog::Fill() {
    const HWND tree = Tree();
    std::vector<com::Ptr<IUnknown>> identities;
    for (const auto& candidate : candidates_) identities.push_back(com::Query<IUnknown>(candidate.Get()));
    items_.assign(candidates_.size(), nullptr);
    SendMessageW(tree, WM_SETREDRAW, FALSE, 0);
    for (size_t index = candidates_.size(); index-- > 0;) {
        const com::Ptr<IUnknown> parent = ParentOf(candidates_[index].Get());
        size_t place = index + 1;
        while (place < candidates_.size() && identities[place] != parent) ++place;
        items_[index] = Insert(index, place < candidates_.size() ? items_[place] : TVI_ROOT);
    }
    for (const HTREEITEM item : items_) TreeView_Expand(tree, item, TVE_EXPAND);
    SendMessageW(tree, WM_SETREDRAW, TRUE, 0);
    TreeView_SelectItem(tree, items_.front());
    TreeView_EnsureVisible(tree, items_.front());
}

HTREEITEM SelectionDialog::Insert(size_t candidate, HTREEITEM parent) {
    std::wstring name = NameOf(candidates_[candidate].Get());
    TVINSERTSTRUCTW item{};
    item.hParent = parent;
    item.hInsertAfter = TVI_LAST;
    item.item.mask = TVIF_TEXT;
    item.item.pszText = name.data();
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(Tree(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

bool SelectionDialog::OnNotify(const NMHDR& notification) {
    if (notification.idFrom == IDC_OBJECT_SELECTION_TREE && notification.code == TVN_SELCHANGEDW)
        EnableWindow(GetDlgItem(window_, IDOK), TreeView_GetSelection(Tree()) != nullptr);
    return false;
}

// The tree's own notification does not say where the double click was, and would fold the branch.
LRESULT CALLBACK SelectionDialog::TreeProcedure(HWND tree, UINT message, WPARAM wParam, LPARAM lParam,
                                                UINT_PTR, DWORD_PTR) noexcept {
    if (message == WM_LBUTTONDBLCLK) {
        TVHITTESTINFO hit{};
        hit.pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        if (TreeView_HitTest(tree, &hit) && (hit.flags & TVHT_ONITEM)) {
            TreeView_SelectItem(tree, hit.hItem);
            PostMessageW(GetParent(tree), WM_COMMAND, IDOK, 0);
            return 0;
        }
    }
    return DefSubclassProc(tree, message, wParam, lParam);
}

void SelectionDialog::ShowHelp() {
    if (topic_.empty()) return;
    com::Ptr<IUnknown> found;
    if (rack_ && SUCCEEDED(rack_->GetObject(com::Bstr(L"HelpViewer").Get(), __uuidof(IHelpViewer),
                                            found.GetAddressOf()))) {
        const auto viewer = com::Query<IHelpViewer>(found.Get());
        const auto handle = static_cast<long>(reinterpret_cast<LONG_PTR>(window_));
        if (viewer && SUCCEEDED(viewer->ShowTopic(handle, com::Bstr(topic_).Get()))) return;
    }
    const std::wstring module = com::Module::FileName();
    const std::wstring file = module.substr(0, module.rfind(L'\\') + 1) + L"help\\" + topic_;
    const auto shown = reinterpret_cast<INT_PTR>(
        ShellExecuteW(window_, nullptr, file.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    if (shown <= 32)
        MessageBoxW(window_, (LoadText(IDS_HOST_HELP_MISSING) + file).c_str(), caption_.c_str(),
                    MB_OK | MB_ICONWARNING);
}

}  // namespace tovarin
