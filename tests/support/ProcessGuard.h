#pragma once

namespace orvanta::testing {

// Windows: puts the process on a desktop of its own, so that test programs run side by side; turns a crash into exit
// code 139 with the address on the standard error; and answers message boxes that nobody expected, so that no test can
// hang. Elsewhere: nothing.
void GuardProcess();

} // namespace orvanta::testing
