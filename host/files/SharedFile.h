/** Where the TV's own files are: theme, layout and the like. */
#pragma once

#include <string>

namespace veskar
{

/**
 * The file NAME of share/veskar, beside the folder libexec/veskar that the running program is in; so an installed tree
 * may be moved. A file that the environment's VARIABLE names comes first: a build has its files elsewhere. The file may
 * be missing.
 */
std::string SharedFile(const char* variable, const char* name);

} // namespace veskar
