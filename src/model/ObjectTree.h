// A tree control that shows the hierarchy of one test object, one level under the other.
#pragma once

#include <windows.h>

#include <optional>
#include <span>

#include "com/Ptr.h"

namespace recoveryui::model {

class ObjectTree {
public:
    explicit ObjectTree(HWND tree) noexcept : tree_(tree) {}

    // The top-level object first. Every level is open and the last object selected.
    void Show(std::span<const com::Ptr<IDispatch>> chain) const;
    // Places in the chain.
    void Select(size_t member) const;
    std::optional<size_t> Selected() const;

private:
    HWND tree_;
};

}  // namespace recoveryui::model
