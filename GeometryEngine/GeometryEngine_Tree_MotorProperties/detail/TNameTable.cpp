#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/detail/TNameTable.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace GeometryEngine::detail {

namespace {

constexpr char kNumberMark = '_';

char FoldCase(char aLetter) {
  constexpr char kToLowerCase = 'a' - 'A';
  return aLetter >= 'A' && aLetter <= 'Z' ? static_cast<char>(aLetter + kToLowerCase) : aLetter;
}

std::string Folded(std::string_view aName) {
  std::string folded(aName);
  std::transform(folded.begin(), folded.end(), folded.begin(), FoldCase);
  return folded;
}

/// The number of a name that is another one with a number added; 0 when it is none.
std::int32_t GetNumber(std::string_view aDigits) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(aDigits.data(), aDigits.data() + aDigits.size(), number);
  return error == std::errc{} && end == aDigits.data() + aDigits.size() ? number : 0;
}

}  // namespace

std::string TNameTable::NumberedName(std::string_view aName, std::int32_t aNumber) {
  std::array<char, 16> digits{};
  const std::to_chars_result written = std::to_chars(digits.data(), digits.data() + digits.size(), aNumber);
  std::string name(aName);
  name += kNumberMark;
  return name.append(digits.data(), written.ptr);
}

void TNameTable::NoteRenaming(TIndex aIndex) {
  if (!IsIndexWithin(aIndex, fNames.size())) return;
  if (fRenamed.size() < 2 * fNames.size()) return fRenamed.push_back(aIndex);
  Forget();  // cheaper than to follow that many
  fIsComplete = false;
}

void TNameTable::Replace(TIndex aIndex, const std::string* aName) {
  THolder*& holder = fNames[static_cast<std::size_t>(aIndex)];
  Leave(std::exchange(holder, nullptr));
  holder = Enter(aName);
}

bool TNameTable::IsTakenByOther(std::string_view aName, TIndex aIndex) const {
  const auto found = fHolders.find(Folded(aName));
  if (found == fHolders.end()) return false;
  const bool isOwn = IsIndexWithin(aIndex, fNames.size()) && fNames[static_cast<std::size_t>(aIndex)] == &*found;
  return found->second > (isOwn ? 1 : 0);
}

std::int32_t TNameTable::GetLeastFreeNumber(std::string_view aName, std::int32_t aLimit) {
  const std::string name = Folded(aName);
  std::int32_t& number = fLeastFree.try_emplace(name, 1).first->second;
  while (number <= aLimit && fHolders.contains(NumberedName(name, number))) ++number;
  return number;
}

void TNameTable::Forget() {
  fHolders.clear();
  fNames.clear();
  fRenamed.clear();
  fLeastFree.clear();
}

TNameTable::THolder* TNameTable::Enter(const std::string* aName) {
  if (aName == nullptr) return nullptr;
  THolder& holder = *fHolders.try_emplace(Folded(*aName), 0).first;
  ++holder.second;
  return &holder;
}

void TNameTable::Leave(THolder* aHolder) {
  if (aHolder == nullptr || --aHolder->second > 0) return;
  NoteFree(aHolder->first);
  fHolders.erase(fHolders.find(aHolder->first));
}

void TNameTable::NoteFree(const std::string& aFoldedName) {
  const std::size_t mark = aFoldedName.rfind(kNumberMark);
  if (mark == std::string::npos) return;
  const auto found = fLeastFree.find(aFoldedName.substr(0, mark));
  const std::int32_t number = GetNumber(std::string_view(aFoldedName).substr(mark + 1));
  if (found != fLeastFree.end() && number > 0) found->second = std::min(found->second, number);
}

}  // namespace GeometryEngine::detail
