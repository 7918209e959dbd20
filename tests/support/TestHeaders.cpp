// Nothing of its own: the target only precompiles headers for the tests.
