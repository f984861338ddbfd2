"""Writes docs/performance.md from what the benchmarks measured.

report.py OUTPUT PYTHON_TIMES BENCHMARK_TIMES..  (JSON files; of every benchmark the fastest repetition counts)
"""
import json
import math
import statistics
import subprocess
import sys
import textwrap
from collections import defaultdict
from functools import partial

NAMED = ['Line', 'Poly5', 'MicMent', 'Lorentz', 'Polynomial2D', 'Voigt5', 'Exp1P1', 'BoxLucas1', 'Gauss', 'Boltzman', 'Sine',
         'Gauss2D', 'GaussianLorentz', 'ExpDec2', 'Lanczos3', 'SGompertz', 'GaussAmp', 'Allometric1', 'Hill', 'Logistic',
         'SRichards1', 'PearsonVII', 'Giddings', 'Poisson']  # as in laws.hpp, by what they call
SIZES = [1, 100, 1000, 100000]
KINDS = {'value': 'Value', 'gradient': 'Value with all partial derivatives'}
UNIT = {'ns': 1, 'us': 1e3, 'ms': 1e6, 's': 1e9}


def load(files):
    """Nanoseconds per run, the counters of the fits, the most repetitions of any benchmark, and the context."""
    times, counters, repetitions, context = defaultdict(lambda: math.inf), {}, defaultdict(int), {}
    for file in files:
        with open(file, encoding='utf-8') as handle:
            data = json.load(handle)
        context = data['context']
        for b in data['benchmarks']:
            if b.get('run_type') == 'aggregate':
                continue
            name = b['name'].removesuffix('/real_time')
            times[name] = min(times[name], b['real_time'] * UNIT[b['time_unit']])
            counters[name] = b
            repetitions[name] += 1
    return times, counters, max(repetitions.values()), context


def number(v):
    if v is None or math.isinf(v) or math.isnan(v):
        return '–'
    return f'{v:.2f}' if v < 10 else f'{v:.1f}' if v < 100 else f'{v:,.0f}'


def with_ratio(v, base):
    if v is None or math.isinf(v):
        return '–'
    return f'{number(v)} ({v / base:.2f}×)'


def table(head, rows):
    lines = ['| ' + ' | '.join(head) + ' |', '|' + '---|' + '---:|' * (len(head) - 1)]
    lines += ['| ' + ' | '.join(str(c) for c in row) + ' |' for row in rows]
    return '\n'.join(lines) + '\n'


def cpu():
    text = subprocess.run(['lscpu'], capture_output=True, text=True, check=True).stdout
    facts = dict((line.split(':', 1)[0].strip(), line.split(':', 1)[1].strip())
                 for line in text.splitlines() if ':' in line)
    return facts


class Report:
    def __init__(self, python_file, files):
        self.times, self.counters, self.repetitions, self.context = load(files)
        with open(python_file, encoding='utf-8') as handle:
            python = json.load(handle)
        self.versions = python['versions']
        self.times.update({name: seconds * 1e9 for name, seconds in python['seconds'].items()})
        self.out = []

    def say(self, *blocks):
        """Headings, lists, tables and pictures as they are; paragraphs in lines of one length."""
        for paragraph in '\n\n'.join(block.strip('\n') for block in blocks).split('\n\n'):
            if paragraph[0] not in '#-|!':
                paragraph = textwrap.fill(paragraph, 120, break_long_words=False, break_on_hyphens=False)
            self.out.append(paragraph + '\n')

    def point(self, side, kind, model, n):
        """Nanoseconds per point; None where it was not measured."""
        t = self.times.get(f'{side}/{kind}/{model}/{n}')
        return None if t is None else t / n

    def library(self, kind, model, n):
        """Single calls; of a model without derivatives of its own, differences of them."""
        return self.point('single', kind, model, n) or self.point('differences', kind, model, n)

    def models(self, kind):
        return sorted({k.split('/')[2] for k in self.times if k.startswith(f'single/{kind}/')}, key=str.lower)

    def ratios(self, over, under, kind, n):
        """Of all models for which both were measured."""
        pairs = {m: (self.point(over, kind, m, n), self.point(under, kind, m, n)) for m in self.models(kind)}
        return {m: a / b for m, (a, b) in pairs.items() if a and b}

    def against(self, side, kind, n):
        """For how many models the library is faster than a side, and by how much, in words."""
        single = {m: self.library(kind, m, n) for m in NAMED if self.point(side, kind, m, n)}
        ratio = {m: self.point(side, kind, m, n) / t for m, t in single.items()}
        in_batches = sum(self.point(side, kind, m, n) > (self.point('batch', kind, m, n) or t) for m, t in single.items())
        least, most = min(ratio, key=ratio.get), max(ratio, key=ratio.get)
        return (f'{sum(r > 1 for r in ratio.values())} of {len(ratio)} models by single calls and for {in_batches} in '
                f'batches; where a single call takes 1, the other takes {statistics.median(ratio.values()):.2f} in the '
                f'median, from {ratio[least]:.2f} ({least}) to {ratio[most]:.2f} ({most})')

    def head(self):
        facts = cpu()
        clock = f"{facts.get('Model name', 'unknown processor')}, {facts.get('CPU(s)')} processors"
        versions = ', '.join(f'{k} {v}' for k, v in self.versions.items())
        self.say(f"""
# What a call costs

Written by `scripts/bench`, which measures everything below in one run on one machine. Times are nanoseconds per data
point, the fastest of {self.repetitions} repetitions. Nothing here decides a test.

- Machine: {clock}; load when it began {', '.join(f'{v:.1f}' for v in self.context.get('load_avg', []))}
- Compiler: {self.context.get('compiler')}; C library: {self.context.get('c_library')}
- Flags of the library: `{self.context.get('flags')}`
- Compared with: {versions}; the Jets of Ceres Solver; muParser

Every model is called with the typical parameters of its page and x over the typical range; one that repeats a peak or a
term has one of them, but GaussAmp has two. Every formula written for comparison is checked against the library's numbers before it is timed.
""")

    def summary(self):
        value, gradient = ({m: self.point('single', kind, m, 1000) for m in self.models(kind)} for kind in KINDS)
        quarters = statistics.quantiles(gradient.values())
        slowest = max(gradient, key=gradient.get)
        one, two = (self.ratios(a, b, 'gradient', 100000) for a, b in (('single', 'batch'), ('batch', 'batch2')))
        best, worst = max(one, key=one.get), min(one, key=one.get)
        start = statistics.median(self.point('batch', 'gradient', m, 1) - self.point('single', 'gradient', m, 1)
                                  for m in gradient)
        point, loop, batch = (self.ratios(a, b, 'gradient', 1000)
                              for a, b in (('single', 'point'), ('single', 'loop'), ('batch', 'point')))
        least, most = min(point, key=point.get), max(point, key=point.get)
        self.say(f"""
## In short

**Single calls.** Through the shared library, a value takes {statistics.median(value.values()):.1f} ns, the median of
{len(value)} models; a value with all derivatives {statistics.median(gradient.values()):.1f} ns, the median of the
{len(gradient)} models that compute derivatives. Half of these take {quarters[0]:.1f} to {quarters[2]:.1f} ns; {slowest} takes
most, {gradient[slowest]:.0f} ns.

**Batches.** `ansatz_batch_run` computes the same bits for whole columns and saves the call. For 100,000 points with
derivatives on one thread it has {statistics.median(one.values()):.2f} times the throughput of single calls in the median. It
gains most for {best} ({one[best]:.2f} times) and least for {worst} ({one[worst]:.2f} times); {sum(r < 1 for r in one.values())} of
{len(one)} models are slower in a batch. For a single point a batch is the wrong choice: it takes {start:.0f} ns longer
than a call. A second thread brings {statistics.median(two.values()):.2f} times the throughput of one in the median, and
{sum(r < 1 for r in two.values())} of {len(two)} models lose by it: a thread is started for each batch, which costs more than it
saves where the formula is cheap.

**The same formula written by hand** into the program's loop, inlined and without any handling of errors, is what a call
competes with. For {len(point)} models with derivatives a single call takes {statistics.median(point.values()):.2f} times as
long in the median, from {point[least]:.2f} times ({least}) to {point[most]:.2f} times ({most});
{statistics.median(loop.values()):.2f} times as long where the compiler may also move work out of the loop or compute several
points at once. A batch takes {statistics.median(batch.values()):.2f} times as long as the formula computed point by point. Part
of that is the call, which the next section measures. The rest is what the library promises: a formula is computed in its
documented order, with every quotient, power and exponential that stands there, and every result of the C library is checked.
By hand one multiplies by a reciprocal, merges powers and checks nothing; Polynomial2D, which takes its whole powers from
`pow`, shows how much that can save.

**Automatic differentiation.** With derivatives, 1,000 points, the library is faster than the Jets of Ceres for
{self.against('jets', 'gradient', 1000)}. Jets are inlined and handle no error either. The library has no derivatives for
{' and '.join(m for m in NAMED if self.point('differences', 'gradient', m, 1000))}: there it is differences of its values that
are compared, here and below.

**Parsed formulas.** With derivatives, 1,000 points, the library is faster than muParser with central differences for
{self.against('parsed', 'gradient', 1000)}.

**NumPy.** For values of 100,000 points, the library is faster than NumPy for
{self.against('numpy', 'value', 100000)}. NumPy computes exponentials and powers several at a time, with the processor's widest
instructions and to a few units in the last place; the library calls the C library for each, which is good to half a unit or
little more. With derivatives, where SciPy has to take a difference for every parameter, the library is faster for
{self.against('numpy', 'gradient', 100000)}. A short column is expensive in NumPy whatever the formula: see the tables for
1 and 100 points.
""")

    def call(self):
        laws, sides = ['Line', 'Exp1P1', 'Allometric1'], ['point', 'call', 'errno', 'single']
        times = {law: [self.point(side, 'gradient', law, 1000) for side in sides] for law in laws}
        self.say("""
## What a call costs whatever the model

Value and derivatives of three models, ns per point of 1,000: the formula inlined and computed point by point; the same
behind a function pointer with the ten arguments of the library's protocol, errno cleared before each call; with one test of
errno besides, which every model owes its host; and the library's own routine, which also checks its arguments, looks at
the results of the C library and serves several kinds of request.
""", table(['', 'inlined', 'called', 'called, errno tested', 'library'],
                [[law] + [number(t[0])] + [with_ratio(v, t[0]) for v in t[1:]] for law, t in times.items()]), f"""
A call as such takes {times['Line'][1] - times['Line'][0]:.1f} ns here for Line: {times['Line'][1] / times['Line'][0]:.2f} times the
formula itself, while for Allometric1, which takes a power and a logarithm, it is {times['Allometric1'][1] / times['Allometric1'][0]:.2f}
times. A library that is called once per point cannot do without this, whoever writes it; a batch can.
""")

    def catalogue(self):
        self.say("""
## The whole catalogue

Medians over all models, ns per point. *Single : batch* is the time of single calls over that of a batch on one thread: above
1 the batch is faster. In brackets, a tenth of the models are below the first number and a tenth above the second.
""")
        for kind, title in KINDS.items():
            models, rows = self.models(kind), []
            for n in SIZES:
                r = self.ratios('single', 'batch', kind, n).values()
                tenths = statistics.quantiles(r, n=10)
                rows.append([f'{n:,}'] + [number(statistics.median(self.point(s, kind, m, n) for m in models))
                                          for s in ('single', 'batch')] +
                            [f'{statistics.median(r):.2f} ({tenths[0]:.2f} – {tenths[-1]:.2f})',
                             f'{sum(v < 1 for v in r)} of {len(r)}'])
            self.say(f'### {title}, {len(models)} models',
                     table(['points', 'single', 'batch', 'single : batch', 'slower in a batch'], rows))
        rows = []
        for least, most in ((0, 6), (6, 12), (12, 20), (20, math.inf)):
            chosen = [m for m in self.models('gradient') if least <= self.point('single', 'gradient', m, 100000) < most]
            if chosen:
                single, batch, two = ([self.point(s, 'gradient', m, 100000) for m in chosen]
                                      for s in ('single', 'batch', 'batch2'))
                rows.append([f'{least} to {most} ns' if most < math.inf else f'from {least} ns', len(chosen),
                             f'{statistics.median(a - b for a, b in zip(single, batch)):.2f}',
                             f'{statistics.median(a / b for a, b in zip(single, batch)):.2f}',
                             f'{statistics.median(a / b for a, b in zip(batch, two)):.2f}'])
        self.say('### By the cost of a model', """
Value with derivatives, 100,000 points, medians over the models of a class. What a batch saves per point, the call, hardly
depends on the model, so that cheap models gain most. Models that take powers, logarithms or gamma functions of parameters
alone gain more than that: a batch computes these once.
""", table(['single call', 'models', 'saved, ns', 'single : batch', 'one thread : two'], rows))

    def picture(self, path):
        """The table most people look for, to look at: nanoseconds on a logarithmic scale, a line per model."""
        sides = {'point': ('written by hand', 2, '#808080'), 'batch': ('the library, a batch', 7, '#0060a8'),
                 'single': ('the library, single calls', 6, '#0060a8'), 'jets': ('Ceres Jets', 9, '#b07000'),
                 'numpy': ('NumPy and SciPy differences', 5, '#208040'),
                 'parsed': ('muParser and differences', 13, '#a03060')}
        shown = [m for m in NAMED if self.library('gradient', m, 1000)]
        places = {m: len(shown) - i for i, m in enumerate(shown)}
        data, plots = [], []
        for side, (title, shape, colour) in sides.items():
            times = {m: (self.library if side == 'single' else partial(self.point, side))('gradient', m, 1000) for m in shown}
            data += [f'${side} << END'] + [f'{t} {places[m]}' for m, t in times.items() if t] + ['END']
            plots.append(f"${side} using 1:2 with points pt {shape} ps 0.8 lw 1.5 lc rgb '{colour}' title '{title}'")
        tics = ', '.join(f"'{self.label('gradient', m)}' {p}" for m, p in places.items())
        script = '\n'.join(data + [
            "set terminal svg size 820,760 font 'sans-serif,13' background 'white'", f"set output '{path}'",
            'set logscale x', f'set yrange [0.4:{len(shown) + 0.6}]', f'set ytics ({tics})', 'set grid xtics ytics lc "#dddddd"',
            "set xlabel 'ns per point, value with all partial derivatives, 1,000 points'",
            'set key outside top center horizontal maxrows 2', 'plot ' + ', '.join(plots), ''])
        subprocess.run(['gnuplot'], input=script, text=True, check=True)

    def label(self, kind, model):
        peaks = ', two peaks' if model == 'GaussAmp' else ''
        return model + peaks + ('' if self.point('single', kind, model, 1000) else ' *')

    def side_by_side(self):
        self.say("""
## Side by side

![Nanoseconds per point of the models below, for the library and others](performance.svg)

Two dozen models, from those without a call of the C library to those of one exponential, several, powers, and special
functions. *Single* is the library's call through the shared library, one point at a time, and the base of the ratios:
below 1× the other is faster. *Batch* is `ansatz_batch_run` on one thread. *Inlined* is the formula written by hand, one
point at a time (of Voigt5 the form near the centre, where all points are); *loop* the same where terms of the parameters may leave the loop and the compiler may compute several points
at once. *Jets* is automatic differentiation of that formula with Ceres. *Parsed* is muParser, with central differences for
the derivatives. *NumPy* is the formula on whole columns, with SciPy's difference Jacobian (2-point); for Voigt5 it is
SciPy's Faddeeva function. *lmfit* is its built-in model of the law, where it has one.
""")
        titles = {'batch': 'batch', 'point': 'inlined', 'loop': 'loop', 'jets': 'Jets', 'parsed': 'parsed', 'numpy': 'NumPy',
                  'lmfit': 'lmfit'}
        for kind, title in KINDS.items():
            used = [s for s in titles if s != ('jets' if kind == 'value' else 'lmfit')]
            for n in SIZES:
                base = {m: self.library(kind, m, n) for m in NAMED}
                rows = [[self.label(kind, m), number(t)] + [with_ratio(self.point(s, kind, m, n), t) for s in used]
                        for m, t in base.items() if t]
                self.say(f'### {title}, {n:,} point{"s" if n > 1 else ""}',
                         table(['', 'single'] + [titles[s] for s in used], rows))
        self.say('\\* has no derivatives of its own: central differences of the single call.')

    def fits(self):
        self.say("""
## Whole fits

The optimiser is the host library's for all, the start values are the same; only who supplies the derivatives differs:
the library (for whole columns), the library's values with extrapolated differences, Ceres' Jets, and the parsed formula
with central differences. The problems are from NIST's Statistical Reference Datasets; *digits* says to how many the sum of
squares agrees with the certified one. The last problem is simulated. *Evaluations* are passes over the data. Times are in
microseconds per fit, with the ratio to the library's.
""")
        titles = {'library': 'library', 'differences': 'library, differences', 'jets': 'Jets', 'parsed': 'parsed'}
        rows = []
        for name in [k for k in self.times if k.startswith('fits/library/')]:
            _, _, problem, law = name.split('/')
            base = self.times[name]
            for side, title in titles.items():
                key = f'fits/{side}/{problem}/{law}'
                c = self.counters[key]
                error = c.get('rss_error')
                digits = '–' if not isinstance(error, float) or math.isnan(error) else f'{-math.log10(error + 1e-16):.0f}'
                rows.append([f'{problem}, {law}, {int(c["points"]):,} points' if side == 'library' else '', title,
                             f'{int(c["evaluations"])}', with_ratio(self.times[key] / 1000, base / 1000),
                             'yes' if c['converged'] else 'no', digits])
        self.say(table(['problem', 'derivatives by', 'evaluations', 'µs (ratio)', 'converged', 'digits'], rows))

    def lookups(self):
        names = {'first': 'of the first row', 'middle': 'of a row in the middle', 'last': 'of the last row', 'unknown': 'of no row'}
        rows = [[title, number(self.times[f'lookup/{what}'])] for what, title in names.items()]
        self.say("""
## Finding a model

The catalogue is searched from its first row on, as its contract says. Look a model up once, not once per point.
""", table(['name', 'ns'], rows))

    def every_model(self):
        rows = []
        for m in self.models('value'):
            row = [m]
            for kind in KINDS:
                single, batch = self.point('single', kind, m, 1000), self.point('batch', kind, m, 1000)
                row += [number(single), with_ratio(batch, single)]
            rows.append(row)
        self.say('## Every model, 1,000 points', 'ns per point; in brackets the ratio to the single call.', table(
            ['', 'value: single', 'batch', 'with derivatives: single', 'batch'], rows))

    def write(self, path):
        self.head()
        self.summary()
        self.call()
        self.catalogue()
        self.side_by_side()
        self.fits()
        self.lookups()
        self.every_model()
        self.picture(path.removesuffix('.md') + '.svg')
        with open(path, 'w', encoding='utf-8') as file:
            file.write('\n'.join(self.out))


Report(sys.argv[2], sys.argv[3:]).write(sys.argv[1])
