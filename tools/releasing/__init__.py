"""How Kestrune.app is put together, signed and released.

Runs on the Python that comes with a Mac's command-line tools, 3.9.
"""
