#pragma once

#include "league/TeamTable.h"
#include "support/ErrorMessage.h"
#include "support/Text.h"

#include <gmock/gmock.h>

/// The words of every test: matchers, teams, lines of a page, messages of errors.
namespace iceline::test {

using testing::AllOf;
using testing::AnyOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::Eq;
using testing::Ge;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Le;
using testing::Not;
using testing::Optional;
using testing::SizeIs;
using testing::StartsWith;

inline constexpr TeamIndex Boston{0};
inline constexpr TeamIndex Buffalo{1};
inline constexpr TeamIndex Calgary{2};
inline constexpr TeamIndex LosAngeles{8};
inline constexpr TeamIndex Montreal{10};
inline constexpr TeamIndex NewJersey{11};
inline constexpr TeamIndex StLouis{18};
inline constexpr TeamIndex Winnipeg{23};

} // namespace iceline::test
