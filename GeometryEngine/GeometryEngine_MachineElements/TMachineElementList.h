#pragma once

// All elements of a machine, in order, and the boundaries that region detection takes from them.

#include <memory>
#include <vector>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_MachineElements/TMachineElement.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

/// An ordered list of machine elements. OWNS: its elements. Not copyable: `Assign` is the copy.
class GEOMETRYENGINE_API TMachineElementList {
 public:
  TMachineElementList();
  ~TMachineElementList();
  TMachineElementList(const TMachineElementList&) = delete;
  TMachineElementList& operator=(const TMachineElementList&) = delete;

  TIndex GetCount() const;
  TIndex Count() const;
  /// The element at the index; nil outside the list.
  TMachineElement* Item(TIndex aIndex) const;
  /// Takes the element and appends it; the answer is its index. DEGENERATE: nil is not taken, and the answer is
  /// `kNotFound`.
  TIndex Add(std::unique_ptr<TMachineElement>& aElement);
  /// Frees the element at the index; nothing outside the list.
  void Remove(TIndex aIndex);
  void Clear();

  /// Makes this list a deep copy of the other one, in its order.
  void Assign(const TMachineElementList& aSource);
  /// Two boundaries an element, the inner one first, whether in use or not.
  TVirtualBoundaryArray GetAllBoundaries() const;
  /// The entities of the boundaries in use, each geometry once. COST: the square of the boundaries.
  TEntityArray GetBoundaryEntities() const;

 private:
  std::vector<std::unique_ptr<TMachineElement>> fElements;
};

}  // namespace GeometryEngine
