// The module's registration, and the host from its start to its end with the add-in in it.
#include <windows.h>

#include "app/Host.h"
#include "proof/OutwardCalls.h"
#include "proof/Scene.h"

namespace recoveryui::proof {
namespace {

// In a branch of its own in place of the machine's classes.
class Registration final : public Scene {
public:
    Registration() { RegCreateKeyW(HKEY_CURRENT_USER, classes_.c_str(), &key_); }
    ~Registration() override { RegCloseKey(key_); }

private:
    bool Play(Actor&) override {
        if (!(isRegistered_ = SUCCEEDED(Call("DllRegisterServer")))) return false;
        Mark();
        return Call("DllUnregisterServer") == S_OK;
    }
    // What failed half way can be tried again, and then nothing is left. Only a registration that had no
    // memory to be taken back with stays counted.
    std::wstring State() override {
        if (!isRegistered_ && OutwardCalls::IsLasting()) return {};
        if (!IsDone() && !Found().empty()) {
            if (!isRegistered_ && FAILED(Call("DllRegisterServer"))) return L"cannot be registered again";
            if (!IsMarking() && FAILED(Call("DllUnregisterServer"))) return L"cannot be unregistered again";
        }
        return Found();
    }
    // The program ids and class ids that are registered, without those of other makers.
    std::wstring Found() const {
        std::wstring found;
        for (const wchar_t* parent : {L"", L"\\CLSID", L"\\TypeLib", L"\\Interface"}) {
            HKEY key = nullptr;
            if (RegOpenKeyExW(HKEY_CURRENT_USER, (classes_ + parent).c_str(), 0, KEY_READ, &key)) continue;
            wchar_t name[256];
            for (DWORD i = 0, size = 256;
                 !RegEnumKeyExW(key, i, name, &size, nullptr, nullptr, nullptr, nullptr); ++i, size = 256)
                if (*parent || std::wstring(name).rfind(L"Vantrel", 0) == 0)
                    found += std::wstring(name) + L"\n";
            RegCloseKey(key);
        }
        return found;
    }
    HRESULT Call(const char* entryPoint) const {
        RegOverridePredefKey(HKEY_CLASSES_ROOT, key_);
        const HRESULT hr = test::CallEntryPoint(GetModuleHandleW(L"RecoveryUI.dll"), entryPoint);
        RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
        return hr;
    }

    const std::wstring classes_ = branch_ + L"\\Classes";
    HKEY key_ = nullptr;
    bool isRegistered_ = false;
};

class HostStart final : public Scene {
    bool Play(Actor& actor) override {
        tovarin::HostOptions options;
        options.settingsPath = branch_;
        const HRESULT ended =
            actor.During([&] { return tovarin::RunHost(options); }, [&](Player& player) { Use(player); });
        return ended == 0 && actor.GaveUp().empty();
    }
    void Use(Player& player) {
        const HWND host = player.First(nullptr, tovarin::kMainWindowClass);
        HWND manager = nullptr;
        player.Try([&] {
            const UINT command = CommandOf(GetMenu(host), L"Recovery Scenario &Manager...");
            if (!command) throw std::runtime_error("the menu has no such command");
            player.Do([=] { PostMessageW(host, WM_COMMAND, command, 0); });
            manager = player.WaitForWindow(L"Recovery Scenario Manager");
        });
        player.Leave(manager, IDCANCEL);
        player.Try([&] {
            if (!IsWindow(host)) return;
            player.Close(host);
            player.WaitUntilClosed(host);
        });
    }
    static UINT CommandOf(HMENU menu, const wchar_t* text) {
        for (int i = 0; i < GetMenuItemCount(menu); ++i) {
            wchar_t item[200] = L"";
            GetMenuStringW(menu, static_cast<UINT>(i), item, 200, MF_BYPOSITION);
            if (std::wstring(item) == text) return GetMenuItemID(menu, i);
            if (const HMENU below = GetSubMenu(menu, i))
                if (const UINT command = CommandOf(below, text)) return command;
        }
        return 0;
    }
    std::wstring State() override { return L"nothing stays"; }
};

}  // namespace

const std::vector<Journey> shellJourneys = {{"registration", Make<Registration>}, {"host", Make<HostStart>}};

}  // namespace recoveryui::proof
