"""Holds replies of libkelplan against the schemas of capi/schema, and compares them with the program's answers.

schema_test.py LIBRARY SCHEMAS [PROGRAM]
"""

import ctypes
import json
import subprocess
import sys
import unittest
from pathlib import Path

import jsonschema

LIBRARY = ctypes.CDLL(sys.argv[1])
SCHEMAS = Path(sys.argv[2])
PROGRAM = sys.argv[3] if len(sys.argv) > 3 else None

LIBRARY.kelplan_describe.restype = ctypes.c_char_p
LIBRARY.kelplan_free.argtypes = [ctypes.c_void_p]
LIBRARY.kelplan_release.argtypes = [ctypes.c_void_p]


def strict(schema):
    """The schema with no member but those it names: what is added must be described."""
    if isinstance(schema, list):
        return [strict(each) for each in schema]
    if not isinstance(schema, dict):
        return schema
    result = {key: strict(each) for key, each in schema.items()}
    if schema.get("type") == "object" and "properties" in schema:
        result.setdefault("additionalProperties", False)
    return result


def validator(name):
    schema = strict(json.loads((SCHEMAS / f"{name}.json").read_text()))
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema)


VALIDATORS = {path.stem: validator(path.stem) for path in SCHEMAS.glob("*.json")}


def ask(function, request, *arguments):
    """The status and the reply to a request, which may be any bytes."""
    answer = ctypes.c_void_p()
    sent = request if isinstance(request, bytes) else json.dumps(request).encode()
    status = function(sent, *arguments, ctypes.byref(answer))
    reply = json.loads(ctypes.string_at(answer).decode())
    LIBRARY.kelplan_free(answer)
    return status, reply


def solve(request):
    return ask(LIBRARY.kelplan_solve, request, None)


def described():
    return json.loads(LIBRARY.kelplan_describe().decode())


def examples():
    return [(test, example) for test in described()["tests"] for example in test["examples"]]


class SchemaTest(unittest.TestCase):
    def check(self, name, reply):
        VALIDATORS[name].validate(reply)

    def test_description(self):
        self.check("description", described())

    def test_a_schema_can_fail(self):
        with self.assertRaises(jsonschema.ValidationError):
            self.check("description", {**described(), "more": 1})
        with self.assertRaises(jsonschema.ValidationError):
            self.check("answer", solve({"test": "anova"})[1])

    def test_answers(self):
        for test, example in examples():
            request = {"test": test["name"], "inputs": example["inputs"], "explain": True, "densities": True}
            status, reply = solve(request)
            self.assertEqual(status, 0, reply)
            self.check("answer", reply)
            self.check("answer", solve({**request, "names": "underscore"})[1])

    def test_answers_are_the_program_s(self):
        if not PROGRAM:
            self.skipTest("there is no program")
        for test, example in examples():
            arguments = [PROGRAM, *example["arguments"].split(), "--explain", "--format", "json"]
            printed = json.loads(subprocess.run(arguments, check=True, stdout=subprocess.PIPE, text=True).stdout)
            del printed["schema-version"]
            reply = solve({"test": test["name"], "inputs": example["inputs"], "explain": True})[1]
            self.assertEqual({key: each for key, each in reply.items() if key not in ("schema", "version")}, printed)

    def test_tables(self):
        for test, example in examples():
            status, reply = solve({"test": test["name"], "inputs": {**example["inputs"], "alpha": [0.01, 0.05, 2]}})
            self.assertEqual(status, 0, reply)
            self.assertEqual(len(reply["rows"]), 3)
            self.check("table", reply)

    def test_batches(self):
        for test, example in examples():
            batch = ctypes.c_void_p()
            status, reply = ask(LIBRARY.kelplan_prepare, {"test": test["name"], "inputs": example["inputs"],
                                                          "columns": ["alpha"]}, ctypes.byref(batch))
            LIBRARY.kelplan_release(batch)
            self.assertEqual(status, 0 if "alpha" not in example["inputs"] else 2, reply)
            self.check("batch" if status == 0 else "error", reply)

    def test_charts(self):
        for test in described()["tests"]:
            for axis in test["axes"]:
                reply = ask(LIBRARY.kelplan_draw, {"test": test["name"], "chart": axis["name"]}, None)[1]
                self.check("error", reply)
        request = {"test": "two-means", "inputs": {"means": [52, 47], "sd": 10, "n": 50}}
        for chart in ({"chart": "n"}, {"chart": "n-sd", "step": 0.1}, {"chart": "n", "names": "underscore"}):
            status, reply = ask(LIBRARY.kelplan_draw, {**request, **chart}, None)
            self.assertEqual(status, 0, reply)
            self.check("chart", reply)
        curves = {"test": "two-means", "inputs": {"effect-d": [0.2, 0.5], "power": 0.8}, "chart": "n"}
        self.check("chart", ask(LIBRARY.kelplan_draw, curves, None)[1])

    def test_errors(self):
        wrong = [b"", b"\xff", b"[" * 100000, b"{}", {"test": "none"}, {"test": "anova"},
                 {"test": "anova", "inputs": {"effect-f": 2, "power": 9, "groups": 3}},
                 {"test": "anova", "inputs": {"effect-f": [0, 1], "means": [1, 2]}},
                 {"test": "anova", "inputs": {"effect-f": 0.1, "alpha": True}},
                 {"test": "anova", "inputs": {"means": [1, 1], "sd": 1, "power": 0.8}},
                 {"test": "anova", "inputs": {"means": [1], "sd": 1, "n": 2}},
                 {"test": "two-means", "inputs": {"effect-d": 1, "interval": True}}]
        for request in wrong:
            status, reply = solve(request)
            self.assertIn(status, (2, 3), request)
            self.check("error", reply)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
