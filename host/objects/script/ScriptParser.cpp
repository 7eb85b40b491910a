#include "objects/script/ScriptParser.h"

#include "objects/script/ScriptScanner.h"

using namespace std::string_view_literals;

namespace tovarin {
namespace {

class Parser {
public:
    explicit Parser(std::wstring_view text) : scan_(text) {}

    std::optional<std::vector<ScriptFunction>> Parse() {
        for (;;) {
            switch (atStart_ ? scan_.Next() : scan_.NextMark()) {
                case ScriptToken::End:
                    if (!procedure_.kind.empty() || inClass_) return std::nullopt;
                    return std::move(functions_);
                case ScriptToken::Error: return std::nullopt;
                case ScriptToken::Separator:
                    atStart_ = true;
                    modified_ = false;
                    break;
                case ScriptToken::Word:
                    if (!Word()) return std::nullopt;
                    break;
                default: atStart_ = false; break;
            }
        }
    }

private:
    struct Procedure {
        std::wstring_view kind{};  // empty: outside every procedure
        std::wstring_view name;
        std::size_t start = 0;
    };

    // False for what cannot stand in a script.
    bool Word() {
        if (scan_.Is(L"end"sv)) {
            atStart_ = false;
            return End();
        }
        if (!atStart_) return true;
        if (!modified_) first_ = scan_.Start();
        if (scan_.Is(L"public"sv) || scan_.Is(L"private"sv) || scan_.Is(L"default"sv)) {
            modified_ = true;
            return true;
        }
        atStart_ = false;
        if (scan_.Is(L"function"sv)) return Begin(L"function"sv);
        if (scan_.Is(L"sub"sv)) return Begin(L"sub"sv);
        if (scan_.Is(L"class"sv)) return BeginClass();
        if (scan_.Is(L"property"sv)) return Property();
        return true;
    }

    bool TakeName() {
        const ScriptToken token = scan_.Next();
        return token == ScriptToken::Word || token == ScriptToken::Name;
    }

    bool Begin(std::wstring_view kind) {
        if (!procedure_.kind.empty() || !TakeName()) return false;
        procedure_ = {kind, scan_.Text(), first_};
        return true;
    }

    bool BeginClass() {
        if (!procedure_.kind.empty() || inClass_ || !TakeName()) return false;
        inClass_ = true;
        return true;
    }

    // The word is a name like any other unless an accessor follows.
    bool Property() {
        const ScriptScanner before = scan_;
        const bool accessor = scan_.Next() == ScriptToken::Word &&
                              (scan_.Is(L"get"sv) || scan_.Is(L"let"sv) || scan_.Is(L"set"sv));
        if (accessor) return inClass_ && Begin(L"property"sv);
        scan_ = before;
        return true;
    }

    bool End() {
        const ScriptScanner before = scan_;
        if (scan_.Next() == ScriptToken::Word) {
            if (scan_.Is(L"class"sv)) {
                const bool closes = inClass_ && procedure_.kind.empty();
                inClass_ = false;
                return closes;
            }
            for (const std::wstring_view kind : {L"function"sv, L"sub"sv, L"property"sv}) {
                if (scan_.Is(kind)) return Close(kind);
            }
        }
        scan_ = before;
        return true;
    }

    bool Close(std::wstring_view kind) {
        if (kind != procedure_.kind) return false;
        if (!inClass_)
            functions_.push_back({procedure_.name, procedure_.start, scan_.Stop() - procedure_.start});
        procedure_ = {};
        return true;
    }

    ScriptScanner scan_;
    bool atStart_ = true;    // of a statement
    bool modified_ = false;  // it began with a modifier
    std::size_t first_ = 0;  // where it began
    bool inClass_ = false;
    Procedure procedure_;
    std::vector<ScriptFunction> functions_;
};

}  // namespace

std::optional<std::vector<ScriptFunction>> ParseScript(std::wstring_view text) {
    // An old editor may have left Ctrl+Z at the end.
    constexpr wchar_t kEndOfFile = 0x1A;
    while (text.ends_with(kEndOfFile)) text.remove_suffix(1);
    return Parser(text).Parse();
}

}  // namespace tovarin
