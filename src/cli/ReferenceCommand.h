#pragma once

namespace CLI {
class App;
}

namespace ostrel::cli {

/// The sub-command `reference`: writes the reference page of members, properties and events, made from the
/// tables that the component itself runs on.
void AddReferenceCommand(CLI::App& app, int& status);

} // namespace ostrel::cli
