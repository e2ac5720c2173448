// SPDX-License-Identifier: MIT

#pragma once

#include <QProcessEnvironment>

/// Settings of Qt that are available only as environment variables.
namespace brellowind::platform::QtStartEnvironment {

/// Sets the variables that the user has not set. Call before the application object is made, while
/// the process has one thread. Returns the original environment, for started programs.
QProcessEnvironment choose();

} // namespace brellowind::platform::QtStartEnvironment
