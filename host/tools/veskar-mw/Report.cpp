#include "Report.h"

#include "DeskBus.h"
#include "ScreenKinds.h"

#include <nlohmann/json.hpp>

namespace veskar
{
namespace
{
using Json = nlohmann::ordered_json;

struct Result
{
    const char* name;
    int status;
};

Result ResultOf(int kind)
{
    switch (kind)
    {
    case Controller::Answered:
        return {"answered", ExitStatus::ANSWERED};
    case Controller::Closed:
        return {"closed", ExitStatus::CLOSED};
    case Controller::Back:
        return {"back", ExitStatus::BACK};
    default:
        return {"unknown", ExitStatus::UNKNOWN_ANSWER};
    }
}

const char* NameOf(Encoding encoding)
{
    switch (encoding)
    {
    case Encoding::Text:
        return "text";
    case Encoding::Number:
        return "number";
    case Encoding::Flag:
        return "flag";
    case Encoding::List:
    case Encoding::ListFromFile:
        break;
    }
    return "list";
}

/** The text with this number, from 1. One byte carries it, so it says nothing of a longer list. */
void AddText(Json& json, const char* name, const Texts& texts, std::uint8_t number)
{
    constexpr std::size_t MOST = 255;
    if (number > 0 && number <= texts.size() && texts.size() <= MOST)
    {
        json[name] = texts[number - 1];
    }
}

} // namespace

std::string ToJson(const ScreenAnswer& answer, const Request& request)
{
    Json json{{"uiId", answer.uiId},     {"sourceId", answer.sourceId},
              {"kind", answer.kind},     {"result", ResultOf(answer.kind).name},
              {"button", answer.button}, {"item", answer.item},
              {"data", answer.data}};
    if (answer.kind == Controller::Answered)
    {
        AddText(json, "label", request.List("ui_param_buttons"), answer.button);
        AddText(json, "row", request.Rows(), answer.item);
    }
    return json.dump();
}

std::string TaskToJson(const std::string& task, const std::string& action)
{
    return Json{{"task", task}, {"action", action}}.dump();
}

std::string MenuPositionToJson(int position)
{
    return Json{{"menuPosition", position}}.dump();
}

std::string KindsToJson()
{
    Json kinds;
    for (const ScreenKind& kind : ScreenKinds())
    {
        Json options;
        for (const Field& field : kind.fields)
        {
            if (field.encoding != Encoding::ListFromFile)
            {
                options[field.option.substr(2)] = {
                    {"key", field.key}, {"encoding", NameOf(field.encoding)}, {"default", field.defaultNumber}};
            }
        }
        kinds[kind.name] = {{"type", kind.uiType}, {"options", options}};
    }
    return kinds.dump(2);
}

int StatusOf(const ScreenAnswer& answer)
{
    return ResultOf(answer.kind).status;
}

} // namespace veskar
