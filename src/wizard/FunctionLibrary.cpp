#include "wizard/FunctionLibrary.h"

#include "com/Create.h"
#include "com/SafeArray.h"
#include "support/Text.h"

namespace recoveryui::wizard {

bool FunctionLibrary::CreateParser() {
    return SUCCEEDED(com::Create(L"Vantrel.VBScriptParser", parser_));
}

FunctionLibrary::Outcome FunctionLibrary::Open(const std::wstring& path) {
    Close();
    if (!parser_) return Outcome::NoParser;
    const HRESULT hr = parser_->Open(com::Bstr(path).Get());
    if (hr == E_INVALIDARG) return Outcome::NotAScript;
    if (FAILED(hr)) return Outcome::NotFound;
    open_ = true;
    if (ReadFunctions()) return Outcome::Loaded;
    Close();
    return Outcome::NotAScript;
}

void FunctionLibrary::Close() {
    names_.clear();
    functions_.clear();
    if (open_) parser_->Close();
    open_ = false;
}

bool FunctionLibrary::ReadFunctions() {
    com::CVtlSafeArray<VARIANT> array;
    if (FAILED(parser_->GetFunctions(array.Put()))) return false;
    if (array.IsNull()) return true;
    if (FAILED(array.Verify())) return false;
    bool readable = true;
    const HRESULT hr = array.ForEach([&](const com::Variant& element) {
        com::Bstr name;
        auto function = com::Query<IScriptFunction>(element.Object());
        readable = readable && function && SUCCEEDED(function->GetName(name.Put()));
        if (!readable) return;
        functions_.push_back(std::move(function));
        names_.push_back(name.Text());
    });
    return readable && SUCCEEDED(hr);
}

std::wstring FunctionLibrary::TextOf(size_t function) const {
    com::Bstr text;
    if (FAILED(functions_.at(function)->GetText(text.Put()))) return {};
    // A file may end its lines either way; an edit box knows only one.
    return support::ToEditLineEnds(support::ToStoredLineEnds(text.View()));
}

}  // namespace recoveryui::wizard
