#!/usr/bin/env python3
"""Usage: check_quotes.py GUIDE.md SOURCE

Fails unless each C++ block of the guide stands in the source, indentation aside.
"""

import re
import sys


def lines_of(text):
    return [line.strip() for line in text.strip().splitlines()]


def stands_in(block, source):
    return any(source[at:at + len(block)] == block for at in range(len(source)))


def main():
    guide, source = (open(path, encoding="utf-8").read() for path in sys.argv[1:3])
    blocks = re.findall(r"```cpp\n(.*?)```", guide, re.DOTALL)
    if not blocks:
        sys.exit(f"{sys.argv[1]} quotes nothing")
    missing = [block for block in blocks if not stands_in(lines_of(block), lines_of(source))]
    for block in missing:
        print(f"{sys.argv[2]} has no\n{block}", file=sys.stderr)
    return len(missing)


if __name__ == "__main__":
    sys.exit(main())
