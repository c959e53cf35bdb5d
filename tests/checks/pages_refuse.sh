#!/usr/bin/env bash
# pages.sh takes a small house whose pages are right, and tells everything that is wrong in one where they are not.
set -euo pipefail

pages=$(dirname "$(realpath "${BASH_SOURCE[0]}")")/pages.sh
house=$(mktemp -d)
trap 'rm -rf "$house"' EXIT
cd "$house"

mkdir -p docs maps/page source/mainwindow tests/common tools/lamp cellar
touch maps/page/a.js source/mainwindow/window.cpp tests/common/tst_a.cpp tools/lamp/main.cpp cellar/wine.txt
echo 'project(House VERSION 1.2 LANGUAGES CXX)' >CMakeLists.txt
echo '## [1.2] - unreleased' >CHANGELOG.md
printf '%s\n' 'house source' 'lamp tools/lamp' 'tst_a tests/common' 'bench_a bench' >targets
cat >CONTRIBUTING.md <<'END'
[the house](docs/architecture.md#top), `tst_a`
END
cat >docs/architecture.md <<'END'
[home](../CONTRIBUTING.md), `docs/`, `maps/page/`, `maps/`, `source/`, `tests/common/`, `tests/`, `tools/`, `cellar/`.
```
 1  source/mainwindow/   the window
```
| `window.cpp` | the window |
## Targets
| Target | What |
|---|---|
| `house`, `lamp` | programs; `tools/lamp/` |
END
"$pages" targets "$house"

echo '## [1.1] - 2025-01-01' >CHANGELOG.md
cat >>CONTRIBUTING.md <<'END'
[gone](docs/gone.md), `tst_gone`, `bench_gone`, `attic/`, `gone.cpp`
END
cat >docs/architecture.md <<'END'
`docs/`, `maps/page/`, `maps/`, `source/`, `tests/common/`, `tests/`, `tools/`.
```
 1  source/mainfenster/   the window
```
## Targets
| Target | What |
|---|---|
| `house`, `gone` | programs; `tools/lamp/` |
END
diff - <("$pages" targets "$house" | sort) <<'END'
CHANGELOG.md: does not begin with version 1.2
CONTRIBUTING.md: no attic/
CONTRIBUTING.md: no docs/gone.md
CONTRIBUTING.md: no file gone.cpp
CONTRIBUTING.md: no test bench_gone
CONTRIBUTING.md: no test tst_gone
docs/architecture.md: does not tell cellar/
docs/architecture.md: does not tell source/mainwindow/
docs/architecture.md: does not tell source/mainwindow/window.cpp
docs/architecture.md: does not tell the target lamp of tools/lamp/
docs/architecture.md: no source/mainfenster/
docs/architecture.md: no target gone
END
