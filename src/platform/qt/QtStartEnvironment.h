#pragma once

/// What Qt can be told only through the environment, and only while it starts.
namespace brellowind::platform::QtStartEnvironment {

/// To be called before there is an application object. What the user has set stays as it is.
void choose();

/// Takes back what was chosen, for the programs that this one starts. To be called once windows
/// are shown: Qt has looked by then.
void takeBack();

} // namespace brellowind::platform::QtStartEnvironment
