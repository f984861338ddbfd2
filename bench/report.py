"""Writes docs/performance.md from what the benchmarks measured.

report.py OUTPUT PYTHON_TIMES BENCHMARK_TIMES..  (JSON files; of every benchmark the fastest repetition counts)
"""
import json
import math
import statistics
import subprocess
import sys
from collections import defaultdict

NAMED = ['Gauss', 'Lorentz', 'Voigt5', 'PearsonVII', 'ExpDec2', 'Logistic', 'Boltzman', 'Hill', 'SRichards1',
         'Allometric1', 'Poly5', 'Gauss2D']
SIZES = [1, 100, 1000, 100000]
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
            self.python = json.load(handle)
        self.out = []

    def say(self, *paragraphs):
        self.out += [p.strip('\n') + '\n' for p in paragraphs]

    def point(self, side, kind, model, n):
        """Nanoseconds per point; None where it was not measured."""
        for suite in ('catalogue', 'rivals'):
            t = self.times.get(f'{suite}/{side}/{kind}/{model}/{n}')
            if t is not None:
                return t / n
        t = self.python['seconds'].get(f'{side}/{kind}/{model}/{n}')
        return None if t is None else t * 1e9 / n

    def models(self, kind):
        return sorted({k.split('/')[3] for k in self.times if k.startswith(f'catalogue/single/{kind}/')},
                      key=str.lower)

    def ratios(self, over, under, kind, n):
        return {m: self.point(over, kind, m, n) / self.point(under, kind, m, n) for m in self.models(kind)}

    def head(self):
        facts = cpu()
        clock = f"{facts.get('Model name', 'unknown processor')}, {facts.get('CPU(s)')} processors"
        versions = ', '.join(f'{k} {v}' for k, v in self.python['versions'].items())
        gradient = self.ratios('single', 'point', 'gradient', 1000)
        above = sum(r > 2.5 for r in gradient.values())
        batch = statistics.median(self.ratios('single', 'batch', 'gradient', 100000).values())
        batch_value = statistics.median(self.ratios('single', 'batch', 'value', 100000).values())
        two = statistics.median(self.ratios('batch', 'batch2', 'gradient', 100000).values())
        single_two = statistics.median(self.ratios('single', 'batch2', 'gradient', 100000).values())
        self.say(f'''
# What a call costs

Written by `scripts/bench`, which measures everything below in one run on one machine. Times are nanoseconds per data
point, the fastest of {self.repetitions} repetitions; ratios stand beside them. Nothing here decides a test.

- Machine: {clock}; load when it began {', '.join(f'{v:.1f}' for v in self.context.get('load_avg', []))}
- Compiler: {self.context.get('compiler')}; C library: {self.context.get('c_library')}
- Flags of the library: `{self.context.get('flags')}`
- Beside it: {versions}; Ceres Solver's Jets; muParser
''')
        self.say('## The goals', table(['Goal', 'measured', 'met?'], [
            ['value with derivatives, median over the catalogue, at most 1.5 times the inlined limit',
             f'{statistics.median(gradient.values()):.2f}', self.met(statistics.median(gradient.values()) <= 1.5)],
            ['no model above 2.5 times', f'{above} of {len(gradient)} are', self.met(above == 0)],
            ['a batch of 100,000 points on one thread, at least 1.5 times the throughput of single calls',
             f'{batch:.2f} with derivatives, {batch_value:.2f} for values', self.met(batch >= 1.5)],
            ['on two threads, 1.8 times that of one', f'{two:.2f} ({single_two:.2f} times single calls)',
             self.met(two >= 1.8)],
        ]))
        self.say('''
Where a goal is missed, the next two sections measure why: a call as such costs more than a small formula, and the bits
of a model are fixed, so that its formula is computed in its written order, with every quotient, power and exponential that
stands there, and each result of the C library is looked at.
''')

    def floor(self):
        laws = ['Line', 'Exp1P1', 'Allometric1']
        sides = ['inlined', 'call', 'pending', 'results', 'library']
        times = {law: [self.times[f'floor/{side}/{law}'] / 1000 for side in sides] for law in laws}
        exponential = times['Exp1P1']
        self.say('''
## What a call costs whatever the model

Value and derivatives of three laws, ns per point of 1,000: inlined in the loop; behind a pointer with the ten arguments that
hosts pass, errno cleared before it; with one look at errno, which every model owes its host; with a look at each result of
the C library; and the library's own routine, which has all that, its guards and its several requests.
''', table(['', 'inlined', 'call', '+ errno', '+ results', 'library'],
                 [[law] + [number(t[0])] + [with_ratio(v, t[0]) for v in t[1:]] for law, t in times.items()]), f'''
So a model that takes one exponential cannot come below {exponential[3] / exponential[0]:.2f} times its inlined formula, and one
without any below {times['Line'][1] / times['Line'][0]:.2f}, whoever writes it.
''')

    def classes(self):
        """Where the time goes, by what a model costs."""
        models, rows = self.models('gradient'), []
        for least, most in ((0, 6), (6, 12), (12, 20), (20, math.inf)):
            chosen = [m for m in models if least <= self.point('single', 'gradient', m, 100000) < most]
            if not chosen:
                continue
            time = {s: {m: self.point(s, 'gradient', m, 100000) for m in chosen}
                    for s in ('single', 'batch', 'batch2', 'point', 'loop')}
            def median(over, under, combine, times=time, names=chosen):
                return f'{statistics.median(combine(times[over][m], times[under][m]) for m in names):.2f}'
            ratio, gap = (lambda a, b: a / b), (lambda a, b: a - b)
            rows.append([f'{least} to {most} ns' if most < math.inf else f'from {least} ns', len(chosen),
                         median('single', 'point', ratio), median('single', 'batch', gap),
                         median('batch', 'point', gap), median('single', 'batch', ratio),
                         median('single', 'loop', ratio), median('batch', 'batch2', ratio)])
        self.say('''
## Where the time goes

Medians over the models of a class, value with derivatives, 100,000 points. A batch computes what a single call computes,
bit for bit, without the call: *the call* is what a single call takes longer than a batch, *order and tests* what a batch takes
longer than the formula written by hand, which is free to multiply by a reciprocal, to merge powers and to test nothing.
*Single : loop* is the same for that formula where the compiler may take what it can out of the loop. A batch
computes powers, logarithms and gamma functions of parameters alone once, which the compiler may not: such models gain most, and
some run ahead of the formula. Threads are started for each batch and waited for, about 0.1 ms here: half the work of a
second thread where a batch of 100,000 points takes 0.2 ms.
''', table(['single call', 'models', 'single : point', 'the call, ns', 'order and tests, ns', 'single : batch', 'single : loop',
                  'one thread : two'], rows))

    @staticmethod
    def met(yes):
        return 'yes' if yes else '**no**'

    def picture(self, path):
        """The table most people look for, to look at: nanoseconds on a logarithmic scale, a line per model."""
        kind, n = 'gradient', 1000
        sides = {'point': ('written by hand', 2, '#808080'), 'batch': ('the library, a batch', 7, '#0060a8'),
                 'single': ('the library, single calls', 6, '#0060a8'), 'jets': ('Ceres Jets', 9, '#b07000'),
                 'numpy': ('NumPy and SciPy differences', 5, '#208040'),
                 'parsed': ('muParser and differences', 13, '#a03060')}
        places = {m: len(NAMED) - i for i, m in enumerate(NAMED)}
        data, plots = [], []
        for side, (title, shape, colour) in sides.items():
            rows = [(self.point(side, kind, m, n), places[m]) for m in NAMED]
            if side == 'single':  # without derivatives of its own: differences of single calls
                rows = [(t or self.point('differences', kind, m, n), places[m]) for (t, _), m in zip(rows, NAMED)]
            data += [f'${side} << END'] + [f'{t} {place}' for t, place in rows if t] + ['END']
            plots.append(f"${side} using 1:2 with points pt {shape} ps 0.8 lw 1.5 lc rgb '{colour}' title '{title}'")
        tics = ', '.join(f"'{m}{'' if self.point('single', kind, m, n) else ' *'}' {p}" for m, p in places.items())
        script = '\n'.join(data + [
            "set terminal svg size 820,470 font 'sans-serif,13' background 'white'", f"set output '{path}'",
            'set logscale x', f'set yrange [0.4:{len(NAMED) + 0.6}]', f'set ytics ({tics})', 'set grid xtics ytics lc "#dddddd"',
            "set xlabel 'ns per point, value with all partial derivatives, 1,000 points'",
            'set key outside top center horizontal maxrows 2', 'plot ' + ', '.join(plots), ''])
        subprocess.run(['gnuplot'], input=script, text=True, check=True)

    def side_by_side(self):
        self.say('''
## Side by side

![Nanoseconds per point of the models below, for the library and beside it](performance.svg)

*Single* is the library's call through the shared library, one point at a time, and the base of the ratios. *Batch* is
`ansatz_batch_run` on one thread. *Point* is the formula written by hand and inlined, one point at a time; *loop* the
same with the data in the loop, so that terms of the parameters leave it. *Jets* is Ceres' automatic differentiation of
the formula. *Parsed* is muParser, with central differences for the derivatives. *NumPy* is the formula on whole
columns, with SciPy's difference Jacobian (2-point). *lmfit* is its built-in model of the law, where it has one.

NumPy is ahead for the values of long columns: it takes exponentials and powers several at a time, by the processor's widest
instructions and to a few units in the last place, where the library takes the C library's one by one, which are good to half
a unit or little more. It falls behind where it must take a difference for every parameter.
''')
        sides = ['batch', 'point', 'loop', 'jets', 'parsed', 'numpy', 'lmfit']
        titles = ['batch', 'point', 'loop', 'Jets', 'parsed', 'NumPy', 'lmfit']
        for kind, title in (('value', 'Value'), ('gradient', 'Value with all partial derivatives')):
            used = sides if kind == 'value' else sides[:-1]
            for n in SIZES:
                rows = []
                for model in NAMED:
                    base = self.point('single', kind, model, n)
                    mark = ''
                    if base is None:  # no derivatives of its own: the host takes differences
                        base, mark = self.point('differences', kind, model, n), ' *'
                    rows.append([model + mark, number(base)] +
                                [with_ratio(self.point(s, kind, model, n), base) for s in used])
                self.say(f'### {title}, {n:,} point{"s" if n > 1 else ""}',
                         table(['', 'single'] + titles[:len(used)], rows))
            if kind == 'gradient':
                self.say('\\* has no derivatives of its own: central differences of the single call.')

    def catalogue(self):
        self.say('''
## The whole catalogue

Medians over all models that compute, 225 for values and those with derivatives for both. Every limit is checked
against the library's numbers before it is timed; none is left out.
''')
        for kind, title in (('value', 'Value'), ('gradient', 'Value with all partial derivatives')):
            rows = []
            for n in SIZES:
                median = {s: statistics.median(self.point(s, kind, m, n) for m in self.models(kind))
                          for s in ('single', 'point', 'loop', 'batch')}
                r = sorted(self.ratios('single', 'point', kind, n).values())
                b = sorted(self.ratios('single', 'batch', kind, n).values())
                tenth = len(r) // 10
                rows.append([f'{n:,}'] + [number(median[s]) for s in ('single', 'point', 'loop', 'batch')] +
                            [f'{statistics.median(r):.2f} ({r[tenth]:.2f} – {r[-1 - tenth]:.2f})',
                             f'{statistics.median(self.ratios("single", "loop", kind, n).values()):.2f}',
                             f'{statistics.median(b):.2f} ({b[tenth]:.2f} – {b[-1 - tenth]:.2f})'])
            self.say(f'### {title}, {len(self.models(kind))} models', table(
                ['points', 'single', 'point', 'loop', 'batch', 'single : point (tenth – nine tenths)', 'single : loop',
                 'single : batch'], rows))

        rows = []
        for kind in ('value', 'gradient'):
            one = sorted(self.ratios('single', 'batch', kind, 100000).values())
            two = sorted(self.ratios('batch', 'batch2', kind, 100000).values())
            for title, r in ((f'batch on one thread against single calls, {kind}', one),
                             (f'batch on two threads against one, {kind}', two)):
                rows.append([title] + [f'{r[round(q * (len(r) - 1))]:.2f}' for q in (0, 0.25, 0.5, 0.75, 1)])
        self.say('### Throughput of batches of 100,000 points',
                 table(['', 'least', 'quarter', 'median', 'three quarters', 'most'], rows))

        over = sorted(((r, m) for m, r in self.ratios('single', 'point', 'gradient', 1000).items() if r > 2.5),
                      reverse=True)
        rows = []
        for r, m in over:
            single, batch, point = (self.point(s, 'gradient', m, 1000) for s in ('single', 'batch', 'point'))
            rows.append([m, number(single), number(batch), number(point), f'{r:.2f}', f'{batch / point:.2f}'])
        self.say('''
### Above 2.5 times the limit, value with derivatives, 1,000 points

*Inlined* is the batch, which pays no call. What is above 2.5 even so is the law as it is laid down: "Polynomial2D" and
"Rational2D" call `pow` for whole powers, "Chebyshev2D" takes arc cosines and cosines of multiples where the limit
multiplies, "Cosine" four cosines where the limit takes two, "SchulzFlory" and "DoseResp" more powers than the limit needs.
''', table(['', 'single', 'batch', 'point', 'single : point', 'inlined'], rows))

    def fits(self):
        self.say('''
## Whole fits

The optimiser is the host library's for all, the start values are the same; only who supplies the derivatives differs:
the library (for whole columns), the library's values with extrapolated differences, Ceres' Jets, and the parsed formula
with central differences. The problems are from NIST's Statistical Reference Datasets; the sum of squares agrees with
the certified one to the digits given. The last problem is simulated. Evaluations are passes over the data.
''')
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
        rows = [[what, number(self.times[f'lookup/{what}'])] for what in ('first', 'middle', 'last', 'unknown')]
        self.say('''
## Finding a model

The catalogue is searched from its first row on, as its contract says. Look a model up once, not once per point.
''', table(['name', 'ns'], rows))

    def every_model(self):
        rows = []
        for m in self.models('value'):
            row = [m]
            for kind in ('value', 'gradient'):
                single = self.point('single', kind, m, 1000)
                if single is None:
                    row += ['–', '–', '–']
                    continue
                row += [number(single), with_ratio(self.point('point', kind, m, 1000), single),
                        with_ratio(self.point('batch', kind, m, 1000), single)]
            rows.append(row)
        self.say('## Every model, 1,000 points', 'Ratios to the single call.', table(
            ['', 'value: single', 'point', 'batch', 'with derivatives: single', 'point', 'batch'], rows))

    def write(self, path):
        self.head()
        self.floor()
        self.classes()
        self.side_by_side()
        self.catalogue()
        self.fits()
        self.lookups()
        self.every_model()
        self.picture(path.removesuffix('.md') + '.svg')
        with open(path, 'w', encoding='utf-8') as file:
            file.write('\n'.join(self.out))


Report(sys.argv[2], sys.argv[3:]).write(sys.argv[1])
