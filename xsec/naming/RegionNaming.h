#pragma once

// What a region is called and made of: from the entities of its outline, from the words in it, and by rules.

#include <vector>

#include "xsec/Drawing.h"
#include "xsec/Regions.h"
#include "xsec/naming/Rules.h"

namespace xsec {

/// The name of a region for which nothing else is found.
inline constexpr const char* kNamelessRegion = "Region";

enum class NameSource { Layer, Text, Block };

struct NamingRequest {
  NameSource source = NameSource::Layer;
  std::vector<Rule> rules;
};

/// Gives every region its name: the layer, block or text that the request asks for, else the layer that most of the
/// outline's length comes from. Then each of name, type, colour and material is set by the first rule that holds and
/// has it. Warns of rules that no region fits.
/// REQUIRES: outlines, holes and parents stand.
void NameRegions(std::vector<Region>& aRegions, const Drawing& aDrawing, const NamingRequest& aRequest,
                 std::vector<std::string>& aWarnings);

}  // namespace xsec
