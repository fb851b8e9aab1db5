// Prints all that can be seen of what the library does, numbers in hexadecimal: the same text from every compiler and
// at every level of optimisation.

#include <cstdio>

#include "tests/everything/Scenarios.h"

int main() {
  std::vector<everything::TScenario> all = everything::Scenarios();
  for (const everything::TScenario& scenario : everything::DrawingScenarios()) all.push_back(scenario);
  for (const everything::TScenario& scenario : all) {
    everything::TText text;
    everything::Run(scenario, text);
    std::printf("== %s\n%s", scenario.name.c_str(), text.Text().c_str());
  }
}
