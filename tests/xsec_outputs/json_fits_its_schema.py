"""The JSON of every sample fits the schema that xsec prints, and JSON with a fault does not.

usage: json_fits_its_schema.py XSEC SAMPLES FOLDER
"""

import copy
import json
import subprocess

from outputs import SAMPLES, arguments, finish, needs, regions_of

jsonschema = needs("jsonschema")

FAULTS = {
    "an unknown key": lambda json: json["regions"][0].update(unknown=1),
    "a region without its area": lambda json: json["regions"][0].pop("netArea"),
    "an arc without its centre": lambda json: arc_of(json).pop("centre"),
    "another format": lambda json: json["xsec"].update(format=2),
    "no copies": lambda json: json.update(copies=0),
    "a type beyond the last": lambda json: json["regions"][0]["type"].update(ordinal=61),
}


def arc_of(found):
    return next(piece for region in found["regions"] for piece in region["outline"] if piece["type"] == "arc")


def main():
    xsec, samples, folder = arguments(["XSEC", "SAMPLES", "FOLDER"])
    schema = json.loads(subprocess.run([xsec, "schema"], capture_output=True, text=True, check=True).stdout)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    faults = []
    for sample in SAMPLES:
        found = regions_of(xsec, samples / f"{sample}.dxf", folder)
        faults += [f"{sample}: {error.json_path}: {error.message[:200]}" for error in validator.iter_errors(found)]
    for what, spoil in FAULTS.items():
        spoilt = copy.deepcopy(found)
        spoil(spoilt)
        if validator.is_valid(spoilt):
            faults.append(f"the schema takes {what}")
    finish(faults, len(SAMPLES) + len(FAULTS))


main()
