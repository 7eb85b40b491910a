#include "objects/CallJournal.h"

#include <memory>

#include "objects/Paths.h"

namespace tovarin {
namespace {

std::string Utf8(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

}  // namespace

CallJournal::CallJournal() {
    Journal::Instance().AddInterest();
}
CallJournal::~CallJournal() {
    Journal::Instance().RemoveInterest();
}

HRESULT CallJournal::AddListener(IJournalListener* listener) noexcept {
    if (!listener) return E_INVALIDARG;
    return com::Guarded([&] { Journal::Instance().AddListener(listener); });
}

HRESULT CallJournal::RemoveListener(IJournalListener* listener) noexcept {
    return com::Guarded([&] { return Journal::Instance().RemoveListener(listener) ? S_OK : E_INVALIDARG; });
}

HRESULT CallJournal::GetText(BSTR* text) noexcept {
    if (!text) return E_POINTER;
    *text = nullptr;
    return com::Guarded([&] { return com::CopyTo(text, Journal::Instance().Text()); });
}

HRESULT CallJournal::Clear() noexcept {
    return com::Guarded([] { Journal::Instance().Clear(); });
}

HRESULT CallJournal::WriteToFile(BSTR path) noexcept {
    return com::Guarded([&] {
        const std::string bytes = Utf8(Journal::Instance().Text());
        const HANDLE file =
            CreateFileW(LongPath(std::wstring(com::ViewOf(path))).c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                        nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file == INVALID_HANDLE_VALUE) return HRESULT_FROM_WIN32(GetLastError());
        const std::unique_ptr<void, decltype(&CloseHandle)> owner(file, &CloseHandle);
        DWORD written = 0;
        return WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
                       written == bytes.size()
                   ? S_OK
                   : HRESULT_FROM_WIN32(GetLastError());
    });
}

HRESULT CallJournal::FailCall(BSTR object, BSTR operation, long nth, HRESULT code, long times) noexcept {
    return com::Guarded([&] {
        Journal::Instance().FailCall(std::wstring(com::ViewOf(object)), std::wstring(com::ViewOf(operation)),
                                     nth, code, times);
    });
}

HRESULT CallJournal::ClearFaults() noexcept {
    return com::Guarded([] { Journal::Instance().ClearFaults(); });
}

HRESULT CallJournal::TakeFault(BSTR object, BSTR operation, HRESULT* code) noexcept {
    if (!code) return E_POINTER;
    *code = S_OK;
    return com::Guarded([&] {
        const std::wstring name(com::ViewOf(object)), called(com::ViewOf(operation));
        const std::optional<HRESULT> fault = Journal::Instance().TakeFault(name.c_str(), called.c_str());
        *code = fault.value_or(S_OK);
        return fault ? S_OK : S_FALSE;
    });
}

HRESULT CallJournal::Record(BSTR object, BSTR operation, BSTR arguments, BSTR result) noexcept {
    return com::Guarded([&] {
        Journal::Instance().Add({std::wstring(com::ViewOf(object)), std::wstring(com::ViewOf(operation)),
                                 std::wstring(com::ViewOf(arguments)), std::wstring(com::ViewOf(result))});
    });
}

}  // namespace tovarin
