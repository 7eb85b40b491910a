#include "objects/script/ScriptParser.h"

#include "objects/script/ScriptScanner.h"

namespace tovarin {
namespace {

// An old editor may have left Ctrl+Z at the end.
bool IsPlainText(std::wstring_view text) {
    constexpr wchar_t kEndOfFile = 0x1A;
    while (text.ends_with(kEndOfFile)) text.remove_suffix(1);
    for (const wchar_t character : text) {
        const bool space = character >= L'\t' && character <= L'\r';
        if ((character < L' ' && !space) || character == 0x7F) return false;
    }
    return true;
}

class Parser {
public:
    explicit Parser(std::wstring_view text) : scan_(text) {}

    std::optional<std::vector<ScriptFunction>> Parse() {
        for (;;) {
            switch (scan_.Next()) {
                case ScriptToken::End:
                    if (procedure_.kind || inClass_) return std::nullopt;
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
        const wchar_t* kind = nullptr;  // null: outside every procedure
        std::wstring name;
        std::size_t start = 0;
    };

    // False for what cannot stand in a script.
    bool Word() {
        if (scan_.Is(L"end")) {
            atStart_ = false;
            return End();
        }
        if (!atStart_) return true;
        if (!modified_) first_ = scan_.Start();
        if (scan_.Is(L"public") || scan_.Is(L"private") || scan_.Is(L"default")) {
            modified_ = true;
            return true;
        }
        atStart_ = false;
        if (scan_.Is(L"function")) return Begin(L"function");
        if (scan_.Is(L"sub")) return Begin(L"sub");
        if (scan_.Is(L"class")) return BeginClass();
        if (scan_.Is(L"property")) return Property();
        return true;
    }

    bool TakeName() {
        const ScriptToken token = scan_.Next();
        return token == ScriptToken::Word || token == ScriptToken::Name;
    }

    bool Begin(const wchar_t* kind) {
        if (procedure_.kind || !TakeName()) return false;
        procedure_ = {kind, std::wstring(scan_.Text()), first_};
        return true;
    }

    bool BeginClass() {
        if (procedure_.kind || inClass_ || !TakeName()) return false;
        inClass_ = true;
        return true;
    }

    // The word is a name like any other unless an accessor follows.
    bool Property() {
        const ScriptScanner before = scan_;
        const bool accessor =
            scan_.Next() == ScriptToken::Word && (scan_.Is(L"get") || scan_.Is(L"let") || scan_.Is(L"set"));
        if (accessor) return inClass_ && Begin(L"property");
        scan_ = before;
        return true;
    }

    bool End() {
        const ScriptScanner before = scan_;
        if (scan_.Next() == ScriptToken::Word) {
            if (scan_.Is(L"class")) {
                const bool closes = inClass_ && !procedure_.kind;
                inClass_ = false;
                return closes;
            }
            for (const wchar_t* kind : {L"function", L"sub", L"property"}) {
                if (scan_.Is(kind)) return Close(kind);
            }
        }
        scan_ = before;
        return true;
    }

    bool Close(std::wstring_view kind) {
        if (!procedure_.kind || kind != procedure_.kind) return false;
        if (!inClass_)
            functions_.push_back(
                {std::move(procedure_.name), procedure_.start, scan_.Stop() - procedure_.start});
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
    return IsPlainText(text) ? Parser(text).Parse() : std::nullopt;
}

}  // namespace tovarin
