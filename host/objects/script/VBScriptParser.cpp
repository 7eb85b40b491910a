#include "objects/script/VBScriptParser.h"

#include "com/SafeArray.h"
#include "objects/Paths.h"
#include "objects/script/ScriptFile.h"

namespace tovarin {
namespace {

class Function final : public HostObject<Function, IScriptFunction> {
public:
    static constexpr const wchar_t* kName = L"ScriptFunction";

    Function(std::shared_ptr<const std::wstring> text, const ScriptFunction& place)
        : text_(std::move(text)), place_(place) {}

    HRESULT STDMETHODCALLTYPE GetName(BSTR* name) noexcept override {
        return Call(L"GetName").Give([&] { return com::CopyTo(name, place_.name); }, name);
    }
    HRESULT STDMETHODCALLTYPE GetText(BSTR* text) noexcept override {
        return Call(L"GetText")
            .Give(
                [&] {
                    return com::CopyTo(text, std::wstring_view(*text_).substr(place_.start, place_.length));
                },
                text);
    }

private:
    std::shared_ptr<const std::wstring> text_;  // of the whole library
    ScriptFunction place_;
};

std::shared_ptr<void> OpenShared(const std::wstring& path) {
    const HANDLE file = CreateFileW(LongPath(path).c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    return file == INVALID_HANDLE_VALUE ? nullptr : std::shared_ptr<void>(file, &CloseHandle);
}

}  // namespace

HRESULT VBScriptParser::Open(BSTR path) noexcept {
    return Call(L"Open", path).Answer([&]() -> HRESULT {
        CloseFile();
        const std::shared_ptr<void> file = OpenShared(std::wstring(com::ViewOf(path)));
        if (!file) return StorageCode(GetLastError());
        auto text = std::make_shared<std::wstring>();
        const HRESULT hr = ReadScript(file.get(), *text);
        if (FAILED(hr)) return hr;
        auto functions = ParseScript(*text);
        if (!functions) return E_INVALIDARG;
        functions_ = std::move(*functions);
        text_ = std::move(text);
        file_ = file;
        return S_OK;
    });
}

HRESULT VBScriptParser::GetFunctions(SAFEARRAY** functions) noexcept {
    return Call(L"GetFunctions")
        .Give(
            [&] {
                if (!file_) return E_UNEXPECTED;
                com::CVtlSafeArray<VARIANT> list;
                com::Check(list.Create(static_cast<ULONG>(functions_.size())));
                for (size_t index = 0; index < functions_.size(); ++index) {
                    const auto function = Function::Make(text_, functions_[index]);
                    com::Check(
                        list.PutElement(static_cast<LONG>(index), com::Variant(function->KeepAlive().Get())));
                }
                *functions = list.Detach();
                return S_OK;
            },
            functions);
}

HRESULT VBScriptParser::Close() noexcept {
    return Call(L"Close").Answer([&] { CloseFile(); });
}

void VBScriptParser::CloseFile() noexcept {
    file_.reset();
    text_.reset();
    functions_.clear();
}

}  // namespace tovarin
