#pragma once

#include <string>

// The module over the expression library.

/// The value of an expression in UTF-8; throws a std::exception that says what is wrong with it.
extern "C" double coregui_evaluate_expression(const std::string& expression);
