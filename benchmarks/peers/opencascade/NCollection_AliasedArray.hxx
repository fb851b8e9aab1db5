#pragma once

// Stands in for a header that the Debian package of Open CASCADE 7.6 leaves out although two others include it. Nothing
// here is ever called: it is what those two need in order to compile, written from the way they use it.

#include <Standard_Integer.hxx>
#include <Standard_ProgramError.hxx>

#include <utility>

template <int = 16>
class NCollection_AliasedArray {
 public:
  explicit NCollection_AliasedArray(Standard_Integer aStride) : myStride(aStride) {}
  NCollection_AliasedArray(Standard_Integer aStride, Standard_Integer) : myStride(aStride) {}
  template <typename TValue>
  NCollection_AliasedArray(const TValue&, Standard_Integer) : myStride(static_cast<Standard_Integer>(sizeof(TValue))) {}

  bool IsEmpty() const { return true; }
  Standard_Integer Length() const { return 0; }
  void Move(NCollection_AliasedArray& aOther) { std::swap(myData, aOther.myData); }
  template <typename TValue>
  const TValue& Value(Standard_Integer aIndex) const {
    return reinterpret_cast<const TValue*>(myData)[aIndex];
  }
  template <typename TValue>
  TValue& ChangeValue(Standard_Integer aIndex) {
    return reinterpret_cast<TValue*>(myData)[aIndex];
  }

 protected:
  unsigned char* myData = nullptr;
  Standard_Integer myStride;
};
