"""The rules by which make_plant.py fills the sample plant."""
