"""The same laws in NumPy, with SciPy's difference Jacobian, and lmfit's built-in models where it has the law.

python_side.py WORKLOADS prints the times as JSON: per side, kind, model and number of points, in seconds.
"""
import json
import sys
import timeit

import lmfit
import numpy as np
import scipy
from scipy.optimize._numdiff import approx_derivative  # what least_squares takes its Jacobian from
from scipy.special import gamma, wofz

SIZES = (1, 100, 1000, 100000)
ROUNDS = 5  # the fastest counts


def voigt(P, x):
    z = ((x - P[1]) * 1.665109222 + 1j * P[4] * 0.832554611) / P[3]
    return P[0] + P[2] * wofz(z).real * 0.939437278 / P[3]


def pearson7(P, x):
    a = 2 ** (1 / P[4]) - 1
    height = 2 * P[2] * np.sqrt(a) * gamma(P[4]) / (gamma(P[4] - 0.5) * P[3] * np.sqrt(np.pi))
    return P[0] + height * (1 + 4 * a * ((x - P[1]) / P[3]) ** 2) ** -P[4]


def richards(P, x):
    sign = 1 if P[2] < 1 else -1
    return (P[0] ** (1 - P[2]) - sign * np.exp(-(x - P[1]) * P[3])) ** (1 / (1 - P[2]))


LAWS = {
    'Gauss': lambda P, x: P[0] + P[3] / (P[2] * np.sqrt(np.pi / 2)) * np.exp(-2 * ((x - P[1]) / P[2]) ** 2),
    'Lorentz': lambda P, x: P[0] + 2 * P[3] / np.pi * P[2] / (4 * (x - P[1]) ** 2 + P[2] ** 2),
    'Voigt5': voigt,
    'PearsonVII': pearson7,
    'ExpDec2': lambda P, x: P[0] + P[1] * np.exp(-x / P[2]) + P[3] * np.exp(-x / P[4]),
    'Logistic': lambda P, x: P[1] + (P[0] - P[1]) / (1 + (x / P[2]) ** P[3]),
    'Boltzman': lambda P, x: P[1] + (P[0] - P[1]) / (1 + np.exp((x - P[2]) / P[3])),
    'Hill': lambda P, x: P[0] / (1 + (P[1] / x) ** P[2]),
    'SRichards1': richards,
    'Allometric1': lambda P, x: P[0] * x ** P[1],
    'Poly5': lambda P, x: P[0] + x * (P[1] + x * (P[2] + x * (P[3] + x * (P[4] + x * P[5])))),
    'Gauss2D': lambda P, x, y: P[0] + P[1] * np.exp(-(((x - P[2]) / P[3]) ** 2 + ((y - P[4]) / P[5]) ** 2) / 2),
}


def lmfit_models():
    """lmfit's model of the law, a constant added where the law has an offset; with parameters near enough to time."""
    m = lmfit.models
    return {
        'Gauss': (m.GaussianModel() + m.ConstantModel(), dict(amplitude=2, center=0.1, sigma=0.7, c=1)),
        'Lorentz': (m.LorentzianModel() + m.ConstantModel(), dict(amplitude=2, center=0.1, sigma=0.7, c=1)),
        'Voigt5': (m.VoigtModel() + m.ConstantModel(), dict(amplitude=2, center=0.1, sigma=0.7, gamma=0.5, c=1)),
        'PearsonVII': (m.Pearson7Model() + m.ConstantModel(), dict(amplitude=2, center=0.1, sigma=0.7, expon=1.5, c=1)),
        'ExpDec2': (m.ExponentialModel(prefix='a_') + m.ExponentialModel(prefix='b_') + m.ConstantModel(),
                    dict(a_amplitude=2, a_decay=1, b_amplitude=1, b_decay=2, c=1)),
        'Allometric1': (m.PowerLawModel(), dict(amplitude=2, exponent=1.5)),
        'Poly5': (m.PolynomialModel(degree=5), dict(c0=1, c1=2, c2=1, c3=2, c4=1, c5=0.5)),
    }


def columns(work, n):
    """The ranges of the data as the C++ side takes them, all rising."""
    share = (np.arange(n) + 0.5) / n
    return [a + (b - a) * share for a, b in zip(work['from'], work['to'])]


def fastest(call):
    timer = timeit.Timer(call)
    number, took = timer.autorange()
    number = max(1, int(number * 0.02 / took))
    return min(timer.repeat(ROUNDS, number)) / number


def main():
    with open(sys.argv[1], encoding='utf-8') as file:
        work = json.load(file)
    times = {}
    for name, law in LAWS.items():
        P = np.array(work[name]['P'])
        here, want = law(P, *columns(work[name], 1))[0], work[name]['y']
        if abs(here - want) > 1e-5 * (abs(want) + 0.01):
            sys.exit(f'{name} is another law here: {here} instead of {want}')
        for n in SIZES:
            x = columns(work[name], n)
            times[f'numpy/value/{name}/{n}'] = fastest(lambda: law(P, *x))
            times[f'numpy/gradient/{name}/{n}'] = fastest(
                lambda: approx_derivative(lambda p: law(p, *x), P, method='2-point', f0=law(P, *x)))
    for name, (model, values) in lmfit_models().items():
        parameters = model.make_params(**values)
        for n in SIZES:
            x, = columns(work[name], n)
            x = np.abs(x) + 0.1
            times[f'lmfit/value/{name}/{n}'] = fastest(lambda: model.eval(parameters, x=x))
    versions = {'Python': sys.version.split()[0], 'NumPy': np.__version__, 'SciPy': scipy.__version__,
                'lmfit': lmfit.__version__}
    json.dump({'versions': versions, 'seconds': times}, sys.stdout, indent=1)


main()
