#pragma once

#include <string_view>

namespace korventally::driver {

/// The window classes of the controls.
inline constexpr std::wstring_view kButton = L"button";
inline constexpr std::wstring_view kEdit = L"edit";
inline constexpr std::wstring_view kLabel = L"static";

/// The beginnings of the frames' captions.
inline constexpr std::wstring_view kOne = L"WORKING DIRECTORY:";
inline constexpr std::wstring_view kTwo = L"SELECT THE TYPE";
inline constexpr std::wstring_view kThree = L"INPUT INFO";
inline constexpr std::wstring_view kFour = L"PROCESSING";
inline constexpr std::wstring_view kFive = L"OUTPUT";
inline constexpr std::wstring_view kReceptors = L"File with Receptors";
inline constexpr std::wstring_view kTime = L"Start Time";
inline constexpr std::wstring_view kRank = L"Rank 1";
inline constexpr std::wstring_view kPeriod = L"AVERAGING";

}  // namespace korventally::driver
