// Opens function libraries and lists their functions.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "HostInterfaces.h"
#include "objects/HostObject.h"
#include "objects/script/ScriptParser.h"

namespace tovarin {

// Others may read, change and delete the file while it is open.
class VBScriptParser final : public HostObject<VBScriptParser, IVBScriptParser> {
public:
    static constexpr const wchar_t* kName = L"VBScriptParser";
    static constexpr const wchar_t* kProgId = L"Vantrel.VBScriptParser";

    // A library that was open before is closed, whatever comes of it.
    HRESULT STDMETHODCALLTYPE Open(BSTR path) noexcept override;
    // The functions as they were when the file was opened; E_UNEXPECTED without an open file.
    HRESULT STDMETHODCALLTYPE GetFunctions(SAFEARRAY** functions) noexcept override;
    HRESULT STDMETHODCALLTYPE Close() noexcept override;

private:
    void CloseFile() noexcept;

    std::shared_ptr<void> file_;
    std::shared_ptr<const std::wstring> text_;
    std::vector<ScriptFunction> functions_;
};

}  // namespace tovarin
