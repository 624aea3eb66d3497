#include "AppControl.h"

#include <cstdlib>
#include <cstring>
#include <new>

namespace
{

/** Null when there is no memory left. */
char** CopyArray(const app_control_s::Array& values)
{
    // One more than is needed: an empty array is an allocation too, that the caller can tell from a failure and free.
    auto** copies = static_cast<char**>(calloc(values.size() + 1, sizeof(char*)));
    for (size_t i = 0; copies != nullptr && i < values.size(); ++i)
    {
        copies[i] = strdup(values[i].c_str());
        if (copies[i] == nullptr)
        {
            while (i-- > 0)
            {
                free(copies[i]);
            }
            free(copies);
            return nullptr;
        }
    }
    return copies;
}

/** Finds the value of `key` if it is a `Kind`; the error tells why it is not found. */
template <typename Kind>
int Find(app_control_h request, const char* key, const Kind*& found)
{
    if (request == nullptr || key == nullptr)
    {
        return APP_CONTROL_ERROR_INVALID_PARAMETER;
    }
    const auto entry = request->data.find(key);
    if (entry == request->data.end())
    {
        return APP_CONTROL_ERROR_KEY_NOT_FOUND;
    }
    found = std::get_if<Kind>(&entry->second);
    return found != nullptr ? APP_CONTROL_ERROR_NONE : APP_CONTROL_ERROR_INVALID_DATA_TYPE;
}

} // namespace

int app_control_create(app_control_h* request)
{
    if (request == nullptr)
    {
        return APP_CONTROL_ERROR_INVALID_PARAMETER;
    }
    auto* created = new (std::nothrow) app_control_s;
    if (created == nullptr)
    {
        return APP_CONTROL_ERROR_OUT_OF_MEMORY;
    }
    *request = created;
    return APP_CONTROL_ERROR_NONE;
}

int app_control_destroy(app_control_h request)
{
    if (request == nullptr)
    {
        return APP_CONTROL_ERROR_INVALID_PARAMETER;
    }
    delete request;
    return APP_CONTROL_ERROR_NONE;
}

int app_control_set_app_id(app_control_h request, const char* appId)
{
    if (request == nullptr || appId == nullptr)
    {
        return APP_CONTROL_ERROR_INVALID_PARAMETER;
    }
    request->appId = appId;
    return APP_CONTROL_ERROR_NONE;
}

int app_control_add_extra_data(app_control_h request, const char* key, const char* value)
{
    if (request == nullptr || key == nullptr || value == nullptr)
    {
        return APP_CONTROL_ERROR_INVALID_PARAMETER;
    }
    request->data.insert_or_assign(key, std::string(value));
    return APP_CONTROL_ERROR_NONE;
}

int app_control_add_extra_data_array(app_control_h request, const char* key, const char* values[], int length)
{
    if (request == nullptr || key == nullptr || length < 0 || (values == nullptr && length > 0))
    {
        return APP_CONTROL_ERROR_INVALID_PARAMETER;
    }
    app_control_s::Array array;
    for (int i = 0; i < length; ++i)
    {
        if (values[i] == nullptr)
        {
            return APP_CONTROL_ERROR_INVALID_PARAMETER;
        }
        array.emplace_back(values[i]);
    }
    request->data.insert_or_assign(key, std::move(array));
    return APP_CONTROL_ERROR_NONE;
}

int app_control_get_extra_data(app_control_h request, const char* key, char** value)
{
    if (value == nullptr)
    {
        return APP_CONTROL_ERROR_INVALID_PARAMETER;
    }
    const std::string* found = nullptr;
    if (const int error = Find(request, key, found); error != APP_CONTROL_ERROR_NONE)
    {
        return error;
    }
    char* copy = strdup(found->c_str());
    if (copy == nullptr)
    {
        return APP_CONTROL_ERROR_OUT_OF_MEMORY;
    }
    *value = copy;
    return APP_CONTROL_ERROR_NONE;
}

int app_control_get_extra_data_array(app_control_h request, const char* key, char*** values, int* length)
{
    if (values == nullptr || length == nullptr)
    {
        return APP_CONTROL_ERROR_INVALID_PARAMETER;
    }
    const app_control_s::Array* found = nullptr;
    if (const int error = Find(request, key, found); error != APP_CONTROL_ERROR_NONE)
    {
        return error;
    }
    char** copies = CopyArray(*found);
    if (copies == nullptr)
    {
        return APP_CONTROL_ERROR_OUT_OF_MEMORY;
    }
    *values = copies;
    *length = static_cast<int>(found->size());
    return APP_CONTROL_ERROR_NONE;
}
