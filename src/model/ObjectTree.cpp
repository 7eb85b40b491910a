#include "model/ObjectTree.h"

#include <commctrl.h>

#include <string>

#include "model/TestObjects.h"

namespace recoveryui::model {
namespace {

class WithoutRedraw {
public:
    explicit WithoutRedraw(HWND window) : window_(window) { SendMessageW(window, WM_SETREDRAW, FALSE, 0); }
    ~WithoutRedraw() {
        SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(window_, nullptr, TRUE);
    }
    WithoutRedraw(const WithoutRedraw&) = delete;
    WithoutRedraw& operator=(const WithoutRedraw&) = delete;

private:
    HWND window_;
};

}  // namespace

void ObjectTree::Show(std::span<const com::Ptr<IDispatch>> chain) const {
    HTREEITEM item = TVI_ROOT;
    {
        const WithoutRedraw scope(tree_);
        TreeView_DeleteAllItems(tree_);
        for (size_t member = 0; member < chain.size(); ++member) {
            const std::wstring name = DisplayNameOf(chain[member].Get());
            TVINSERTSTRUCTW insert{};
            insert.hParent = item;
            insert.hInsertAfter = TVI_LAST;
            insert.item.mask = TVIF_TEXT | TVIF_PARAM;
            insert.item.pszText = const_cast<LPWSTR>(name.c_str());
            insert.item.lParam = static_cast<LPARAM>(member);
            const HTREEITEM parent = item;
            item = TreeView_InsertItem(tree_, &insert);
            if (parent != TVI_ROOT) TreeView_Expand(tree_, parent, TVE_EXPAND);
        }
    }
    if (chain.empty()) return;
    TreeView_SelectItem(tree_, item);
    TreeView_EnsureVisible(tree_, item);
}

void ObjectTree::Select(size_t member) const {
    auto item = TreeView_GetRoot(tree_);
    for (; item && member > 0; --member) item = TreeView_GetChild(tree_, item);
    if (item) TreeView_SelectItem(tree_, item);
}

std::optional<size_t> ObjectTree::Selected() const {
    TVITEMW item{};
    item.mask = TVIF_PARAM;
    item.hItem = TreeView_GetSelection(tree_);
    if (!item.hItem || !TreeView_GetItem(tree_, &item)) return std::nullopt;
    return static_cast<size_t>(item.lParam);
}

}  // namespace recoveryui::model
