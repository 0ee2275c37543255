#pragma once

namespace ostrel::cli {

/// Lets a request for more memory than the machine has fail where it is made, instead of ending the process.
void LimitMemory();

} // namespace ostrel::cli
