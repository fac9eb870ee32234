#pragma once

/// What the maker says of itself and of the product.
namespace kalvo::app {

inline constexpr const char* kApplicationName = "Kalvo Tresk";
inline constexpr const char* kWebAddress = "https://www.kalvo.example";
inline constexpr const char* kDeveloperCredit = "Sviluppato da Kalvo.";
inline constexpr const char* kCopyright = "© 2025 Kalvo.";

}  // namespace kalvo::app
