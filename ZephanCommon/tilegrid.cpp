// Filled by its own change.
