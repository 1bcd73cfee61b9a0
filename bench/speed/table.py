# SPDX-License-Identifier: MIT
"""Tables of text, as Markdown shows them."""


class Table:
    def __init__(self, *columns):
        self._rows = [columns]

    def add(self, *cells):
        assert len(cells) == len(self._rows[0])
        self._rows.append(cells)

    def __str__(self):
        widths = [max(len(str(row[i])) for row in self._rows) for i in range(len(self._rows[0]))]
        lines = [self._line(row, widths) for row in self._rows]
        rule = '|' + '|'.join('-' * (width + 1) + (':' if i else '-') for i, width in enumerate(widths)) + '|'
        return '\n'.join([lines[0], rule, *lines[1:]])

    @staticmethod
    def _line(row, widths):
        cells = [f'{cell:>{width}}' if i else f'{cell:{width}}' for i, (cell, width) in enumerate(zip(row, widths))]
        return '| ' + ' | '.join(cells) + ' |'


def ratio(first, second):
    if not second:
        return '-'
    value = first / second
    return f'{value:.2f}' if value >= 0.095 else f'{value:.4f}'
