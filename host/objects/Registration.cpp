#include "objects/Registration.h"

#include <objbase.h>

#include <string>

#include "com/Guard.h"
#include "com/Module.h"

namespace tovarin {
namespace com = recoveryui::com;
namespace {

std::wstring GuidText(REFGUID guid) {
    wchar_t text[40];
    StringFromGUID2(guid, text, static_cast<int>(std::size(text)));
    return text;
}

void Write(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
    com::Check(HRESULT_FROM_WIN32(RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), name, REG_SZ, text.c_str(),
                                                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)))));
}

void Register(const com::ClassEntry& entry) {
    const std::wstring clsid = GuidText(*entry.clsid), key = L"CLSID\\" + clsid;
    Write(key, nullptr, entry.description);
    Write(key + L"\\ProgID", nullptr, entry.progId);
    Write(key + L"\\InprocServer32", nullptr, com::Module::FileName());
    Write(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
    Write(entry.progId, nullptr, entry.description);
    Write(entry.progId + std::wstring(L"\\CLSID"), nullptr, clsid);
}

}  // namespace

HRESULT RegisterClasses(std::span<const com::ClassEntry> classes) noexcept {
    const HRESULT hr = com::Guarded([&] {
        for (const com::ClassEntry& entry : classes) Register(entry);
    });
    if (FAILED(hr)) UnregisterClasses(classes);
    return hr;
}

HRESULT UnregisterClasses(std::span<const com::ClassEntry> classes) noexcept {
    return com::Guarded([&] {
        for (const com::ClassEntry& entry : classes) {
            for (const std::wstring& key : {L"CLSID\\" + GuidText(*entry.clsid), std::wstring(entry.progId)})
                RegDeleteTreeW(HKEY_CLASSES_ROOT, key.c_str());
        }
    });
}

}  // namespace tovarin
