/** The screens that can be asked for, and which option of the command line becomes which value of the request. */
#pragma once

#include <limits>
#include <string>
#include <vector>

namespace veskar
{
/** How an option's value is carried. */
enum class Encoding
{
    Text,
    Number,
    Flag,
    /** The option is repeatable, each time one element. */
    List,
    /** The option names a file whose lines are further elements. */
    ListFromFile
};

struct Field
{
    std::string key;
    std::string option;
    Encoding encoding;
    std::string help;
    int defaultNumber = 0;
    /** A number above it or below 0 must be a mistake and is refused; `raw` sends any. */
    int highestNumber = std::numeric_limits<int>::max();
};

struct ScreenKind
{
    std::string name;
    std::string uiType;
    std::string help;
    /** All of them are sent. One that the command line does not give is empty, 0 or the default number. */
    std::vector<Field> fields;
};

const std::vector<ScreenKind>& ScreenKinds();

} // namespace veskar
