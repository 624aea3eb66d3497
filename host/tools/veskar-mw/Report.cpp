#include "Report.h"

#include "DeskBus.h"

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

int StatusOf(const ScreenAnswer& answer)
{
    return ResultOf(answer.kind).status;
}

} // namespace veskar
