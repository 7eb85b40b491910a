#include "ui/DroppedFiles.h"

#include <shellapi.h>

namespace recoveryui::ui {
namespace {
constexpr UINT kCountFiles = 0xFFFFFFFF;

struct DropCloser {
    HDROP drop;
    ~DropCloser() { DragFinish(drop); }
};

}  // namespace

std::vector<std::wstring> TakeDroppedFiles(WPARAM dropped) {
    const DropCloser closer{reinterpret_cast<HDROP>(dropped)};
    std::vector<std::wstring> paths(DragQueryFileW(closer.drop, kCountFiles, nullptr, 0));
    for (UINT i = 0; i < paths.size(); ++i) {
        paths[i].resize(DragQueryFileW(closer.drop, i, nullptr, 0) + size_t{1});
        paths[i].resize(DragQueryFileW(closer.drop, i, paths[i].data(), static_cast<UINT>(paths[i].size())));
    }
    return paths;
}

}  // namespace recoveryui::ui
