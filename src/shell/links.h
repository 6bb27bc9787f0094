#pragma once
// The web addresses the Help menu opens. They are configuration values of the build: set them with
// cmake -DQB_SITE_ADDRESS=... -DQB_DONATE_ADDRESS=... (see the top CMakeLists.txt).

namespace qb::shell {

// The maker's main page ("&Visit Vandrell's Scripts").
inline constexpr const char* kSiteAddress = QB_SITE_ADDRESS;
// The maker's page number 2, for donations ("Make A &Donation").
inline constexpr const char* kDonateAddress = QB_DONATE_ADDRESS;

}  // namespace qb::shell
