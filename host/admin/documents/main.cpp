// Writes what ferrowindctl is delivered with, from the table of its commands.
// usage: ferrowindctl_documents manual VERSION DATE FILE | bash FILE | zsh FILE

#include <CLI/CLI.hpp>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "host/admin/command_set.h"
#include "host/admin/command_table.h"
#include "host/admin/documents/completion.h"
#include "host/admin/documents/manual_page.h"
#include "host/admin/documents/program_outline.h"

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  CLI::App program;
  ferrowind::host::CommandSet commands(program);
  ferrowind::host::BuildCommandTable(program, commands);
  const ferrowind::host::OutlinedCommand outline = ferrowind::host::OutlineOf(program);

  const std::string document = arguments.empty() ? "" : arguments.front();
  const bool is_manual = document == "manual" && arguments.size() == 4;
  const bool is_completion = (document == "bash" || document == "zsh") && arguments.size() == 2;
  if (!is_manual && !is_completion) {
    std::cerr << "usage: ferrowindctl_documents manual VERSION DATE FILE | bash FILE | zsh FILE\n";
    return EXIT_FAILURE;
  }
  std::ofstream file(arguments.back());
  if (is_manual) {
    ferrowind::host::WriteManualPage(outline, {.version = arguments[1], .date = arguments[2]}, file);
  } else if (document == "bash") {
    ferrowind::host::WriteBashCompletion(outline, file);
  } else {
    ferrowind::host::WriteZshCompletion(outline, file);
  }
  file.close();
  if (file) return EXIT_SUCCESS;
  std::cerr << "ferrowindctl_documents: cannot write " << arguments.back() << '\n';
  return EXIT_FAILURE;
}
