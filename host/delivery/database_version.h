#pragma once

#include <string>

#include "ferrowind/platform/database/engine_registry.h"

namespace ferrowind::host {

/// What a program with windows does about a database that another version of it has made, before it shows
/// anything. Both look at files alone: on a server the procedures are the database's own, so that every
/// version of them serves, and its administrator upgrades it. A file that cannot be read is left to the
/// windows, which tell what is wrong with it.

/// Brings the database of `url`, which belongs to this program alone and has no administrator, to this
/// program's version: an upgrade happens whole or not at all. The delivered books in it learn since when they
/// hold (first_years.h). A newer database, and one that cannot be upgraded, are a `platform::Failure` and
/// stay as they are. `engines` must be safe to use on another thread.
void UpgradeOwnDatabase(const platform::EngineRegistry& engines, const std::string& url);

/// A `platform::Failure` that tells how to upgrade the database of `url` when it is older, and that it takes
/// a newer program when it is newer. Other programs may be at work with it, so it is not upgraded unasked. An
/// older one can be read, and refuses every change.
void RequireThisVersion(const std::string& url);

}  // namespace ferrowind::host
