#pragma once
// Where users reach the project: the web page behind the Welcome tab's link, and the
// support mail address that the mail button writes to and that dirError asks users to
// write to. Kept here once so the texts and the links cannot drift apart.

#include <QLatin1StringView>

namespace guidance {

inline constexpr QLatin1StringView kWebPageAddress{"https://abacon.dev"};
inline constexpr QLatin1StringView kSupportMailAddress{"support@abacon.dev"};

}  // namespace guidance
