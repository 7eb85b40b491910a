#include "shell/ClassRegistration.h"

#include <objbase.h>

#include <string>

#include "RecoveryUI.h"
#include "com/Guard.h"
#include "com/Module.h"
#include "resources/ids.h"
#include "shell/RegistryKey.h"
#include "shell/RegistryScript.h"

namespace recoveryui::shell {
namespace {

std::wstring ScriptText() {
    const HINSTANCE module = com::Module::Instance();
    const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(IDR_REGISTRATION), L"REGISTRY");
    const HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
    if (!loaded) throw com::HResultError(HRESULT_FROM_WIN32(GetLastError()));
    const auto* text = static_cast<const char*>(LockResource(loaded));
    return {text, text + SizeofResource(module, found)};  // plain ASCII
}

std::vector<RegistryEntry> EntriesOf(const com::ClassEntry& entry) {
    const Replacement replacements[] = {
        {L"CLSID", GuidText(*entry.clsid)},  {L"PROGID", entry.progId},
        {L"DESCRIPTION", entry.description}, {L"TYPELIB", GuidText(LIBID_RecoveryUILib)},
        {L"RELATIVE_PATH", BareFileName()},
    };
    auto entries = ParseRegistryScript(ScriptText(), replacements);
    if (!entries) throw com::HResultError(E_UNEXPECTED);
    return std::move(*entries);
}

// Values are set in place: what stands beside them, the count above all, is not touched.
HRESULT RunScript(const std::vector<RegistryEntry>& entries) {
    for (const RegistryEntry& entry : entries) {
        LSTATUS status = ERROR_SUCCESS;
        const RegistryKey key = CreateKey(HKEY_CLASSES_ROOT, entry.key, &status);
        if (status == ERROR_SUCCESS && entry.text)
            status = WriteText(key.Get(), entry.valueName, *entry.text);
        if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
    }
    return S_OK;
}

std::wstring ClassKey(const com::ClassEntry& entry) {
    return L"CLSID\\" + GuidText(*entry.clsid);
}

// As much as can be removed; gives the first failure. The class itself goes last and only when all else is
// gone: without it nobody would try again.
LSTATUS RemoveAll(const com::ClassEntry& entry, const std::vector<RegistryEntry>& entries) {
    const std::wstring classKey = ClassKey(entry);
    LSTATUS result = ERROR_SUCCESS;
    for (const std::wstring& key : OwnedKeys(entries)) {
        const LSTATUS status = key == classKey ? ERROR_SUCCESS : DeleteTree(HKEY_CLASSES_ROOT, key);
        if (result == ERROR_SUCCESS) result = status;
    }
    return result == ERROR_SUCCESS ? DeleteTree(HKEY_CLASSES_ROOT, classKey) : result;
}

RegistryKey OpenServerKey(const com::ClassEntry& entry, LSTATUS* status = nullptr) {
    return OpenKey(HKEY_CLASSES_ROOT, ClassKey(entry) + L"\\InprocServer32", 0, status);
}

}  // namespace

std::wstring BareFileName() {
    const std::wstring path = com::Module::FileName();
    return path.substr(path.rfind(L'\\') + 1);
}

std::wstring GuidText(REFGUID guid) {
    wchar_t text[40];
    return {text, static_cast<size_t>(StringFromGUID2(guid, text, static_cast<int>(std::size(text)))) - 1};
}

HRESULT RegisterClassEntry(const com::ClassEntry& entry) {
    const auto entries = EntriesOf(entry);
    LSTATUS before = ERROR_SUCCESS;
    OpenServerKey(entry, &before);
    HRESULT hr = RunScript(entries);
    if (SUCCEEDED(hr)) {
        const RegistryKey key = OpenServerKey(entry);
        hr = key && WriteCount(key.Get(), ReadCount(key.Get()) + 1) == ERROR_SUCCESS ? S_OK : E_FAIL;
    }
    if (FAILED(hr) && IsMissing(before)) RemoveAll(entry, entries);
    return hr;
}

HRESULT UnregisterClassEntry(const com::ClassEntry& entry) {
    const auto entries = EntriesOf(entry);  // nothing has been counted yet when this fails
    DWORD left = 0;
    {
        LSTATUS status = ERROR_SUCCESS;
        const RegistryKey key = OpenServerKey(entry, &status);
        if (IsMissing(status)) return S_FALSE;
        if (!key) return E_FAIL;
        left = TakeOne(key.Get());
    }
    return left == 0 ? HRESULT_FROM_WIN32(RemoveAll(entry, entries)) : S_OK;
}

}  // namespace recoveryui::shell
