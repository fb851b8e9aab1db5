#pragma once

// What a check found, for people, for programs, and as marks in a picture.

#include <string>
#include <vector>

#include "xsec/Report.h"
#include "xsec/check/Findings.h"

namespace xsec {

std::string CheckText(const Report& aReport, const Findings& aFindings);
std::string CheckJson(const Report& aReport, const Findings& aFindings);
std::vector<Mark> MarksOf(const Report& aReport, const Findings& aFindings);

}  // namespace xsec
