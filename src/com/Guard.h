// The one way from exceptions to HRESULTs and back. Nothing but HRESULTs crosses an interface.
#pragma once

#include <windows.h>

#include <exception>
#include <new>
#include <type_traits>

namespace recoveryui::com {

// A failed call that travels as an exception inside the component.
class HResultError : public std::exception {
public:
    explicit HResultError(HRESULT code) noexcept : code_(code) {}
    HRESULT Code() const noexcept { return code_; }
    const char* what() const noexcept override { return "HRESULT"; }

private:
    HRESULT code_;
};

// Throws HResultError for a failure code.
inline void Check(HRESULT hr) {
    if (FAILED(hr)) throw HResultError(hr);
}

// The HRESULT for the exception being handled. Call inside a catch block.
inline HRESULT CurrentExceptionCode() noexcept {
    try {
        throw;
    } catch (const HResultError& error) {
        return error.Code();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL;
    }
}

// Runs a body that may throw and answers an HRESULT: its own, or S_OK when it returns nothing.
template <class Body>
HRESULT Guarded(Body&& body) noexcept {
    try {
        if constexpr (std::is_void_v<decltype(body())>) {
            body();
            return S_OK;
        } else {
            return body();
        }
    } catch (...) {
        return CurrentExceptionCode();
    }
}

}  // namespace recoveryui::com
