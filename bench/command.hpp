// dakvm bench.
#pragma once

#include <CLI/CLI.hpp>

namespace dakvm::bench {

// Adds the subcommand.
void describe(CLI::App& app);

}  // namespace dakvm::bench
