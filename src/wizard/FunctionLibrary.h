#pragma once

#include <string>
#include <vector>

#include "HostInterfaces.h"
#include "com/Ptr.h"

namespace recoveryui::wizard {

// A script library and its functions, as the host's parser reads it.
class FunctionLibrary {
public:
    enum class Outcome { Loaded, NotFound, NotAScript, NoParser };

    // False when the host has no parser; every library then opens to NoParser.
    bool CreateParser();

    // Closes what was open. The file stays open, its functions known, until it is closed.
    Outcome Open(const std::wstring& path);
    void Close();

    // In the order of the file.
    const std::vector<std::wstring>& Names() const { return names_; }
    // The text of a function as an edit box shows it; empty when the parser does not give it.
    std::wstring TextOf(size_t function) const;

private:
    bool ReadFunctions();

    com::Ptr<IVBScriptParser> parser_;
    std::vector<com::Ptr<IScriptFunction>> functions_;
    std::vector<std::wstring> names_;
    bool open_ = false;
};

}  // namespace recoveryui::wizard
