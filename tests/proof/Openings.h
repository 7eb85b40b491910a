// Every dialog of the product, ready to be opened.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "harness/HelpViewer.h"
#include "proof/Scene.h"

namespace recoveryui::proof {

class Openings : public Scene {
public:
    using Script = std::function<void(Player& player, HWND window)>;

    struct Dialog {
        const char* name;
        const wchar_t* title;
    };

    Openings();
    static std::span<const Dialog> Dialogs();
    // Opens the dialog of that place and lets the user have it.
    void Open(size_t dialog, Actor& actor, const Script& script);

private:
    bool Play(Actor&) override { return true; }
    std::wstring State() override { return {}; }
    HRESULT Show(size_t dialog);

    com::Ptr<test::HelpViewer> help_ = test::HelpViewer::Make();
    const std::wstring file_ = WriteEveryKind(L"file.trs");
};

// Loads the modules into this process, with everything counted.
void LoadModules();

}  // namespace recoveryui::proof
