#include "wizard/PointingHand.h"

#include "HostInterfaces.h"
#include "com/Create.h"
#include "com/Guard.h"
#include "shell/Rack.h"
#include "support/ScopedFlag.h"
#include "ui/Window.h"

namespace recoveryui::wizard {
namespace {

constexpr long kWaitMilliseconds = 500;
constexpr int kAside = 5000;

// Keeps a sheet and its owners beside the screen. Whatever ends the scope brings them back.
class Aside {
public:
    explicit Aside(HWND sheet) : sheet_(sheet) {
        for (HWND window = sheet; window; window = GetWindow(window, GW_OWNER)) {
            RECT place{};
            GetWindowRect(window, &place);
            windows_.push_back({window, {place.left, place.top}});
        }
        Move(kAside);
    }
    ~Aside() {
        Move(0);
        SetForegroundWindow(sheet_);
    }
    Aside(const Aside&) = delete;
    Aside& operator=(const Aside&) = delete;

private:
    struct Place {
        HWND window;
        POINT corner;
    };

    // The sheet is the last that appears again, so that no owner covers it.
    void Move(int left) const noexcept {
        for (auto place = windows_.rbegin(); place != windows_.rend(); ++place)
            SetWindowPos(place->window, nullptr, place->corner.x - left, place->corner.y, 0, 0,
                         SWP_NOSIZE | SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_NOACTIVATE);
    }

    HWND sheet_;
    std::vector<Place> windows_;
};

}  // namespace

std::vector<com::Ptr<IDispatch>> PointedAt::Objects() const {
    std::vector<com::Ptr<IDispatch>> found;
    com::Check(objects.ForEach([&](const com::Variant& element) {
        if (element.Type() == VT_DISPATCH && element.Object()) found.emplace_back(element.Get().pdispVal);
    }));
    return found;
}

std::wstring PointedAt::Title() const {
    const HWND top = GetAncestor(window, GA_ROOT);
    return top ? ui::TextOf(top) : std::wstring();
}

std::optional<PointedAt> PointingHand::Point(HWND page, IObjectRack* rack) {
    com::Ptr<IVtlFinger> finger;
    if (pointing_ || FAILED(com::Create(L"Vantrel.VtlFinger", finger))) return std::nullopt;
    const support::ScopedFlag pointing(pointing_);
    const Aside aside(GetParent(page));

    long x = 0, y = 0, cancelled = 0;
    com::Check(finger->SetWaitTime(kWaitMilliseconds));
    com::Check(finger->CapturePoint(&x, &y, &cancelled));
    if (cancelled) return std::nullopt;

    com::Ptr<IRecordMgr> recorder;
    com::Check(shell::Fetch(rack, L"RecordMgr", recorder));
    PointedAt target;
    com::Check(recorder->GetObjectsAtPoint(target.objects.Put(), x, y));
    if (!target.objects.IsNull()) com::Check(target.objects.Verify());
    // Before the wizard is back and covers it.
    target.window = WindowFromPoint({x, y});
    return target;
}

}  // namespace recoveryui::wizard
