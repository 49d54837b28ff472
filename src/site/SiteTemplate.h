#pragma once

#include "files/Files.h"

namespace iceline {

/// Copies into the site's root those files and folders of the template that are missing there, the root
/// itself included. Nothing that exists is overwritten. Names that begin with a point are left out.
void copyMissingOfTemplate(Files& siteTemplate, Files& league);

} // namespace iceline
