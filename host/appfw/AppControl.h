/** What a service request is made of. */
#pragma once

#include <map>
#include <string>
#include <variant>
#include <vector>

#include <app_control.h>

/** The object behind the platform's handle. */
struct app_control_s
{
    using Array = std::vector<std::string>;
    using Value = std::variant<std::string, Array>;

    std::string appId;
    std::map<std::string, Value> data;
};
