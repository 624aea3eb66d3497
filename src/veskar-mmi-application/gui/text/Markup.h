#pragma once

#include "EflGuard.h"
#include "Handles.h"

#include <string>

#include <Elementary.h>

namespace VESKAR_APP
{

/** The toolkit markup that shows `text` as typed: its `<` and `&` escaped, its line breaks as tags. */
inline std::string ToMarkup(const std::string& text)
{
    const CString markup(EFL_GUARD(elm_entry_utf8_to_markup, text.c_str()));
    return markup ? markup.get() : "";
}

} // namespace VESKAR_APP
