#pragma once

namespace coregui {

/// Finds a function of one of the library's modules: parts over libraries that few programs need at once, and
/// that are loaded with them when one of their functions is asked for first. The modules lie in the folder
/// COREGUI_MODULE_FOLDER beside the library and stay loaded. Null, with the reason written to the status
/// output, when the installation lacks the module.
void* LateFunction(const char* module, const char* function);

}  // namespace coregui
