// SPDX-License-Identifier: MIT
#include "printer/job_options.h"

#include <strings.h>

namespace halvern {

namespace {

// The blanks that the server escapes within values; other ones are bytes of a value.
constexpr std::string_view kBlanks = " \t\n";

bool isBlank(char c)
{
    return kBlanks.find(c) != std::string_view::npos;
}

// Reads on from `at` to the next blank (or, in a keyword, "=") outside quotes, undoing escapes and quotes.
std::string readWord(std::string_view text, size_t& at, bool keyword)
{
    std::string word;
    char quote = 0;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '\\' && at + 1 < text.size()) {
            word += text[++at];
        } else if (quote != 0) {
            if (c == quote)
                quote = 0;
            else
                word += c;
        } else if ((c == '"' || c == '\'') && !keyword) {
            quote = c;
        } else if (isBlank(c) || (keyword && c == '=')) {
            break;
        } else {
            word += c;
        }
    }
    return word;
}

JobOption flag(std::string word)
{
    if (word.size() > 2 && strncasecmp(word.c_str(), "no", 2) == 0)
        return {word.substr(2), "false"};
    return {std::move(word), "true"};
}

} // namespace

JobOptions parseJobOptions(std::string_view text)
{
    JobOptions options;
    for (size_t at = 0; at < text.size();) {
        if (isBlank(text[at])) {
            ++at;
            continue;
        }
        std::string key = readWord(text, at, true);
        if (at < text.size() && text[at] == '=') {
            std::string value = readWord(text, ++at, false);
            if (!key.empty())
                options.push_back({std::move(key), std::move(value)});
        } else if (!key.empty()) {
            options.push_back(flag(std::move(key)));
        }
    }
    return options;
}

std::optional<std::string> optionValue(const JobOptions& options, std::string_view key)
{
    for (auto option = options.rbegin(); option != options.rend(); ++option) {
        if (option->key == key)
            return option->value;
    }
    return std::nullopt;
}

bool optionIsOn(const JobOptions& options, std::string_view key)
{
    const auto value = optionValue(options, key);
    return value && strcasecmp(value->c_str(), "true") == 0;
}

std::string optionsFile(const JobOptions& options)
{
    std::string text;
    for (const auto& [key, value] : options) {
        text += key + "=";
        for (const char c : value) {
            text += c;
            if (c == '\n')
                text += '\t';
        }
        text += '\n';
    }
    return text;
}

} // namespace halvern
