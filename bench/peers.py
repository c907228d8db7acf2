#!/usr/bin/env python3
"""The same masses and equations by whatever other programs are installed, beside orvane-calc.

usage: bench/peers.py [FOLDER OF orvane-calc]      (build/bin without)

All times are processor time, so that a busy machine spoils them little. Peers that are not installed are named and passed over. Python libraries are looked for where this Python looks,
packages of npm in the current folder's node_modules and in NODE_PATH.
"""

import json
import pathlib
import resource
import shutil
import subprocess
import sys
import time

FORMULAS = ["H2O", "C6H12O6", "Ca(OH)2", "C254H377N65O75S6"]
LEFT = ["H2", "Ca(CN)2", "NaAlF4", "FeSO4", "MgSiO3", "KI", "H3PO4", "PbCrO4", "BrCl", "CF2Cl2", "SO2"]
RIGHT = ["PbBr2", "CrCl3", "MgCO3", "KAl(OH)4", "Fe(SCN)3", "PI3", "Na2SiO3", "CaF2", "H2O"]
REPETITIONS = 5
SECONDS = 0.2


def best(work):
    """Microseconds a call: the least of several repetitions, each long enough to measure."""
    work()
    times = []
    for _ in range(REPETITIONS):
        calls, begin = 0, time.process_time()
        while time.process_time() - begin < SECONDS:
            work()
            calls += 1
        times.append((time.process_time() - begin) / calls)
    return min(times) * 1e6


def row(name, values):
    print(f"{name:<34}" + "".join(f"{value:>18}" for value in values))


def shown(value):
    return f"{value:.2f} µs" if isinstance(value, float) else value


def library_row(name, hint, prepare):
    """prepare() imports the library and returns a function of one formula that works its mass out anew."""
    try:
        mass = prepare()
    except ImportError:
        print(f"{name:<34}not installed ({hint})")
        return
    values = []
    for formula in FORMULAS:
        try:
            values.append(best(lambda: mass(formula)))
        except Exception as error:  # a peer may refuse a formula in any way it likes
            values.append(type(error).__name__)
    row(name, map(shown, values))


def periodictable_mass():
    import periodictable

    return lambda formula: periodictable.formula(formula).mass


def molmass_mass():
    import molmass

    return lambda formula: molmass.Formula(formula).mass


def chempy_mass():
    from chempy import Substance

    return lambda formula: Substance.from_formula(formula).mass


def pymatgen_mass():
    from pymatgen.core import Composition

    return lambda formula: float(Composition(formula).weight)


NODE_MASS = """
const MF = require('mf-parser').MF;
const out = %s.map((formula) => {
  let least = Infinity;
  for (let repetition = 0; repetition < 5; ++repetition) {
    let calls = 0;
    const begin = process.cpuUsage();
    const spent = () => { const { user, system } = process.cpuUsage(begin); return user + system; };
    while (spent() < 200000) { new MF(formula).getInfo().mass; ++calls; }
    least = Math.min(least, spent() / calls);
  }
  return least;
});
console.log(JSON.stringify(out));
"""


def node_row():
    name, hint = "mf-parser (npm)", "npm install mf-parser"
    if shutil.which("node") is None:
        print(f"{name:<34}no node here")
        return
    done = subprocess.run(["node", "-e", NODE_MASS % json.dumps(FORMULAS)], capture_output=True, text=True)
    if done.returncode != 0:
        print(f"{name:<34}not installed ({hint})")
        return
    row(name, map(shown, map(float, json.loads(done.stdout))))


def children_seconds():
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def orvane_seconds(program, words, line, lines):
    """The least time of the whole process for so many lines, its start included."""
    text = (line + "\n").encode() * lines
    times = []
    for _ in range(REPETITIONS):
        begin = children_seconds()
        subprocess.run([program, *words], input=text, stdout=subprocess.DEVNULL, check=True)
        times.append(children_seconds() - begin)
    return min(times)


def orvane_row(name, program, words):
    lines = 200000
    row(name, (shown(orvane_seconds(program, words, formula, lines) / lines * 1e6) for formula in FORMULAS))


def balance_rows(program):
    print()
    print("The equation that a new user finds, 19 elements and 20 terms:")
    line = "+".join(LEFT) + "=" + "+".join(RIGHT)
    lines = 20000
    print(f"{'orvane-calc balance':<34}{orvane_seconds(program, ['balance'], line, lines) / lines * 1e6:.1f} µs")
    try:
        from chempy import balance_stoichiometry

        print(f"{'chempy':<34}{best(lambda: balance_stoichiometry(set(LEFT), set(RIGHT))):.0f} µs")
    except ImportError:
        print(f"{'chempy':<34}not installed (pip install chempy)")
    try:
        from pymatgen.analysis.reaction_calculator import Reaction
        from pymatgen.core import Composition

        left, right = list(map(Composition, LEFT)), list(map(Composition, RIGHT))
        print(f"{'pymatgen':<34}{best(lambda: Reaction(left, right)):.0f} µs")
    except ImportError:
        print(f"{'pymatgen':<34}not installed (apt install python3-pymatgen)")


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "build/bin")
    program = str(folder / "orvane-calc")
    if not pathlib.Path(program).exists():
        sys.exit(f"bench/peers.py: there is no {program}; build it, or name the folder it is in")
    print("From the text of a formula to its mass:")
    row("", FORMULAS)
    orvane_row("orvane-calc mass, a line", program, ["mass"])
    orvane_row("orvane-calc mass --json, a line", program, ["mass", "--json"])
    library_row("periodictable", "apt install python3-periodictable", periodictable_mass)
    library_row("molmass", "pip install molmass", molmass_mass)
    library_row("chempy", "pip install chempy", chempy_mass)
    library_row("pymatgen", "apt install python3-pymatgen", pymatgen_mass)
    node_row()
    balance_rows(program)


if __name__ == "__main__":
    main()
