"""The demo scene "Roadster": a configurable open sports car, built from curves in plain Python."""
