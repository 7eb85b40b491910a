// The program's arguments: --name value.
#pragma once

#include <map>
#include <string>

namespace recoveryui::proof {

class Options {
public:
    Options(int count, wchar_t** arguments) {
        for (int i = 2; i + 1 < count; i += 2) values_[arguments[i]] = arguments[i + 1];
    }
    std::wstring Text(const wchar_t* name, const wchar_t* otherwise = L"") const {
        const auto found = values_.find(name);
        return found == values_.end() ? otherwise : found->second;
    }
    long Number(const wchar_t* name, long otherwise) const {
        const auto found = values_.find(name);
        return found == values_.end() ? otherwise : std::stol(found->second);
    }

private:
    std::map<std::wstring, std::wstring> values_;
};

// The parts of the program; each gives its exit code.
int Faults(const Options& options);
int PlayFaults(const Options& options);
int Kills(const Options& options);
int LongUse(const Options& options);
int OpenOften(const Options& options);
int Monkeys(const Options& options);
int PlayMonkey(const Options& options);

}  // namespace recoveryui::proof
