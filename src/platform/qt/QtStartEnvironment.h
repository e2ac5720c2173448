#pragma once

#include <QProcessEnvironment>

/// What Qt can be told only through the environment.
namespace brellowind::platform::QtStartEnvironment {

/// Chooses what the person has not set. Call before there is an application object, while the
/// process has one thread. Returns the environment as it was before, for programs that are started.
QProcessEnvironment choose();

} // namespace brellowind::platform::QtStartEnvironment
