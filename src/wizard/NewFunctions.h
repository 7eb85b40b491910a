// Functions that were written in the wizard and wait for Finish to reach their libraries.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace recoveryui::wizard {

struct NewFunction {
    std::wstring typedPath;  // the library as the person named it: what Finish starts from
    std::wstring fullPath;   // the same library where it was found: what comparisons use
    std::wstring name;
    std::wstring text;
};

// In the order of definition, one entry per library and name, both compared ignoring case.
class NewFunctionList {
public:
    // Takes the function; refuses a second one of its library and name.
    bool Add(NewFunction function);

    // The function of that library and name, or null. Valid until the list changes.
    const NewFunction* Find(std::wstring_view fullPath, std::wstring_view name) const;

    // Forgets the function; says whether there was one.
    bool Drop(std::wstring_view fullPath, std::wstring_view name);

    // Forgets the one that was defined first. There must be one.
    void DropFirst() { functions_.erase(functions_.begin()); }

    // The names waiting for one library.
    std::vector<std::wstring> NamesIn(std::wstring_view fullPath) const;

    const std::vector<NewFunction>& All() const { return functions_; }

private:
    std::vector<NewFunction> functions_;
};

}  // namespace recoveryui::wizard
