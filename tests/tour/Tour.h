// The reference host with a user in front of it. Each story runs the host from its start to its end.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "HostInterfaces.h"
#include "com/Ptr.h"
#include "harness/ComTest.h"
#include "harness/UserScreen.h"
#include "resources/ids.h"

namespace recoveryui::tour {

using test::NamesInFile;
using test::Rows;
using test::UserScreen;

// The folder for pictures and files, ending in a backslash.
std::wstring Folder();
std::wstring FileIn(const wchar_t* name);

// Makes a file in the folder, also one of pop-up scenarios that each are described as "About <name>."; gives
// its full path.
std::wstring MakeFile(const wchar_t* file, const std::string& text);
std::wstring MakePopUps(const wchar_t* file, const Rows& names);

class Tour : public testing::Test {
protected:
    using Story = std::function<void(UserScreen& screen, HWND host)>;

    // Shows the host until the story has closed it, and leaves its journal in the folder.
    void Play(const wchar_t* journal, const Story& story);

    // Opens a menu of the menu bar by its letter, pictures it when given a name, and chooses an item.
    static void ChooseFromMenuBar(UserScreen& screen, HWND host, wchar_t letter, const std::wstring& item,
                                  const wchar_t* picture = nullptr);
    static HWND OpenManager(UserScreen& screen, HWND host, const wchar_t* picture = nullptr);
    // What another program meets that wants the file for itself.
    static HRESULT OpenForEditing(const std::wstring& path);
};

}  // namespace recoveryui::tour
