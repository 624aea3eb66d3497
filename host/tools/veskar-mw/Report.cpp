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

} // namespace

std::string ToJson(const ScreenAnswer& answer)
{
    return Json{{"uiId", answer.uiId},     {"sourceId", answer.sourceId},
                {"kind", answer.kind},     {"result", ResultOf(answer.kind).name},
                {"button", answer.button}, {"item", answer.item},
                {"data", answer.data}}
        .dump();
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
