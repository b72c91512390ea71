// What is freed is not kept to be looked at: each trial is a fork, for which all of it would be kept twice.

extern "C" const char* __asan_default_options() { return "quarantine_size_mb=1"; }  // NOLINT
