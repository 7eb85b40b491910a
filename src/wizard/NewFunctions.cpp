#include "wizard/NewFunctions.h"

#include <algorithm>

#include "support/Text.h"

namespace recoveryui::wizard {
namespace {

auto Is(std::wstring_view fullPath, std::wstring_view name) {
    return [=](const NewFunction& function) {
        return support::EqualIgnoringCase(function.fullPath, fullPath) &&
               support::EqualIgnoringCase(function.name, name);
    };
}

}  // namespace

bool NewFunctionList::Add(NewFunction function) {
    if (Find(function.fullPath, function.name)) return false;
    functions_.push_back(std::move(function));
    return true;
}

const NewFunction* NewFunctionList::Find(std::wstring_view fullPath, std::wstring_view name) const {
    const auto found = std::find_if(functions_.begin(), functions_.end(), Is(fullPath, name));
    return found == functions_.end() ? nullptr : &*found;
}

bool NewFunctionList::Drop(std::wstring_view fullPath, std::wstring_view name) {
    return std::erase_if(functions_, Is(fullPath, name)) > 0;
}

std::vector<std::wstring> NewFunctionList::NamesIn(std::wstring_view fullPath) const {
    std::vector<std::wstring> names;
    for (const NewFunction& function : functions_) {
        if (support::EqualIgnoringCase(function.fullPath, fullPath)) names.push_back(function.name);
    }
    return names;
}

}  // namespace recoveryui::wizard
