#pragma once

// clang-format off
#if defined(__SANITIZE_ADDRESS__)
constexpr bool isSanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif
#else
constexpr bool isSanitized = false;
#endif
// clang-format on

/// A large number for a test, smaller where the sanitizers make everything slow.
constexpr int scaled(int count, int countWithSanitizers)
{
    return isSanitized ? countWithSanitizers : count;
}
