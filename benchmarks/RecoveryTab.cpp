// The Recovery tab with many associations beside parsing and formatting their records, and beside a repaint.
#include <windows.h>

#include <commctrl.h>
#include <ocidl.h>

#include <utility>

#include "Compare.h"
#include "Host.h"
#include "Rows.h"
#include "Stage.h"
#include "model/RecordString.h"
#include "resources/ids.h"

namespace recoveryui::bench {
namespace {

constexpr int kMany = 10'000;
constexpr int kFew = 100;

// A settings frame of one page.
class Tab {
public:
    Tab(const Host& host, const std::wstring& records)
        : page_(host.New<IPropertyPage>(L"Vantrel.RecoveryPP")),
          frame_(CreateWindowW(L"#32770", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 640, 560, nullptr,
                               nullptr, GetModuleHandleW(nullptr), nullptr)) {
        host.StoreRecords(records);
    }
    ~Tab() {
        Close();
        DestroyWindow(frame_);
    }
    Tab(const Tab&) = delete;
    Tab& operator=(const Tab&) = delete;

    void Open() {
        const RECT place{0, 0, 600, 500};
        com::Check(page_->Activate(frame_, &place, TRUE));
        com::Check(page_->Show(SW_SHOW));
        open_ = true;
        Settle(frame_);
    }
    void Close() {
        if (std::exchange(open_, false)) page_->Deactivate();
    }
    void SelectRow(int row) const {
        ListView_SetItemState(List(), row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        ListView_EnsureVisible(List(), row, FALSE);
        Settle(frame_);
    }
    void Press(int command) const {
        SendMessageW(GetParent(List()), WM_COMMAND, command, 0);
        Settle(frame_);
    }
    // Down and up again, so that the list stays as it is.
    void Move() {
        down_ = !down_;
        Press(down_ ? IDC_RECOVERY_DOWN : IDC_RECOVERY_UP);
    }
    void Check() const { Press(IDC_RECOVERY_TOGGLE); }
    void Apply() const { com::Check(page_->Apply()); }
    void Repaint() const {
        RedrawWindow(List(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }

    HWND List() const { return Find(frame_); }

private:
    static HWND Find(HWND parent) {
        for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
            if (GetDlgCtrlID(child) == IDC_RECOVERY_LIST) return child;
            if (const HWND found = Find(child)) return found;
        }
        return nullptr;
    }

    com::Ptr<IPropertyPage> page_;
    HWND frame_;
    bool open_ = false;
    bool down_ = false;
};

}  // namespace

void MeasureRecoveryTab(const Host& host) {
    const std::wstring text = MakeRecords(kMany);
    const auto records = model::ReadRecords(text);
    {
        // Both sides open the window; the floor's has one row, and the records are parsed alone.
        const auto open = [&](const std::wstring& stored, const std::function<void()>& more) {
            Tab tab(host, stored);
            const double start = Now();
            tab.Open();
            more();
            return std::vector{Now() - start};
        };
        Compare(
            {{"Recovery tab: open with 10,000 rows", 1.5}}, 21, [&] { return open(text, [] {}); },
            [&] { return open(MakeRecords(1), [&] { Use(model::ReadRecords(text)); }); });
    }
    Tab few(host, MakeRecords(kFew));
    few.Open();
    few.SelectRow(kFew / 2);
    Tab many(host, text);
    many.Open();
    many.SelectRow(kMany / 2);
    Require(ListView_GetItemCount(many.List()) == kMany, "the records are not shown");
    const Side repaint = Timed([&] { many.Repaint(); });
    const Side move = Timed([&] { many.Move(); }), check = Timed([&] { many.Check(); });
    Compare({{"Recovery tab: move a row, against a repaint", 1.5}}, 41, move, repaint);
    Compare({{"Recovery tab: check a row, against a repaint", 1.5}}, 41, check, repaint);
    Compare({{"Recovery tab: move among 10,000, against 100", 1.5}}, 41, move, Timed([&] { few.Move(); }));
    Compare({{"Recovery tab: check among 10,000, against 100", 1.5}}, 41, check, Timed([&] { few.Check(); }));
    // Storing the string is the host's work on both sides.
    Compare({{"Recovery tab: apply 10,000 rows", 1.5}}, 41, Timed([&] { many.Apply(); }),
            Timed([&] { host.StoreRecords(model::WriteRecords(records, 1)); }));
}

}  // namespace recoveryui::bench
