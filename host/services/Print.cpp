#include "Print.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <cstdlib>

namespace veskar
{
void Print(const std::string& line)
{
    std::fprintf(stderr, "veskar-services: %s\n", line.c_str());
}

std::string Quoted(const std::string& text)
{
    return nlohmann::json(text).dump();
}

std::string Secret(const std::string& text)
{
    const char* secrets = std::getenv("VESKAR_LOG_SECRETS");
    if (secrets != nullptr && std::string{secrets} == "1")
    {
        return Quoted(text);
    }
    return std::to_string(text.size()) + " bytes";
}

} // namespace veskar
