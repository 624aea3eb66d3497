// The service processor's readers of request values, and its writer.

#include "Handles.h"
#include "Log.h"
#include "ServiceProcessor.h"

#include <iomanip>
#include <optional>
#include <sstream>

namespace VESKAR_APP
{

namespace
{

std::optional<std::string> ReadText(app_control_h request, const char* key)
{
    char* value = nullptr;
    const int error = app_control_get_extra_data(request, key, &value);
    const CString owner(value);
    if (error != APP_CONTROL_ERROR_NONE || !owner)
    {
        LOG_ERROR("app_control_get_extra_data returned error " << error);
        return std::nullopt;
    }
    return std::string(owner.get());
}

/** False as a condition when the request does not have the key. */
CStringArray ReadArray(app_control_h request, const char* key)
{
    char** values = nullptr;
    int length = 0;
    const int error = app_control_get_extra_data_array(request, key, &values, &length);
    CStringArray array(values, length);
    if (error != APP_CONTROL_ERROR_NONE || !array)
    {
        LOG_ERROR("app_control_get_extra_data returned error " << error);
        return {nullptr, 0};
    }
    return array;
}

} // namespace

bool ServiceProcessor::m_GetParameter(app_control_h const& request, const char* key, int& value)
{
    const std::optional<std::string> text = ReadText(request, key);
    if (!text)
    {
        return false;
    }
    value = 0; // the stream writes nothing when the text is empty
    std::istringstream(*text) >> value;
    return true;
}

bool ServiceProcessor::m_GetParameter(app_control_h const& request, const char* key, std::string& value)
{
    std::optional<std::string> text = ReadText(request, key);
    if (!text)
    {
        return false;
    }
    value = std::move(*text);
    return true;
}

bool ServiceProcessor::m_GetStrings(app_control_h const& request, const char* key, std::vector<std::string>& values)
{
    const CStringArray array = ReadArray(request, key);
    if (!array)
    {
        return false;
    }
    for (int i = 0; i < array.Size(); ++i)
    {
        values.emplace_back(array[i]);
        LOG_INFO("lines[" << i << "]=" << values.back());
    }
    return true;
}

bool ServiceProcessor::m_GetDataArray(app_control_h const& request, const char* key, std::vector<unsigned char>& data)
{
    const CStringArray array = ReadArray(request, key);
    if (!array)
    {
        return false;
    }
    std::ostringstream dump;
    dump << std::hex << std::setfill('0');
    for (int i = 0; i < array.Size(); ++i)
    {
        data.push_back(static_cast<unsigned char>(array[i][0]));
        dump << std::setw(2) << static_cast<int>(data.back()) << ' ';
    }
    // Streamed, not formatted: the "%s" stays in the line on purpose.
    LOG_INFO("MMI message received %s" << dump.str());
    return true;
}

bool ServiceProcessor::m_AddParameter(app_control_h const& request, const char* key, int value)
{
    LOG_INFO("Adding parameters: " << key << ' ' << value);
    if (app_control_add_extra_data(request, key, std::to_string(value).c_str()) != APP_CONTROL_ERROR_NONE)
    {
        LOG_ERROR("app_control_add_extra_data failed");
        return false;
    }
    return true;
}

} // namespace VESKAR_APP
