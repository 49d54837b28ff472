#pragma once

#include "files/Files.h"

#include <string>
#include <vector>

namespace iceline {

/// What becomes of a file of the template that the league has had before and has removed.
enum class RemovedFiles { StayAway, ComeBack };

/// Brings the files of the site's template in the league's site up to date: a file that the league does not
/// have is copied, with what the site's settings tell, one that is as it was delivered is replaced by the
/// template's, and one that the league has changed is never touched. The site keeps the checksum of each file
/// as it was last delivered in a hidden file; for a league from before that the template tells the checksums
/// of its earlier versions. Without a template nothing happens.
///
/// Returns the paths, within the site, of the files of which the template has a newer version that they have
/// not got, as the league had changed them.
std::vector<std::string> bringSiteUpToDate(Files& siteTemplate, Files& league, RemovedFiles removed);

} // namespace iceline
