"""Mutants of the core: small changes to its code, each of which some test should notice."""
