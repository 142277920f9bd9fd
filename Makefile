# The two commands of the README, and helpers for everyday work. CMake does the rest: see CMakePresets.json.
.PHONY: run check python check-python bench coverage reliability reference guide quirks xml-check invoices pictures package check-packages format clean

run:            ## Build for this machine and show the library at work
	@scripts/run

python:         ## Build the package for Python in build/python
	@scripts/python

check-python:   ## Build the package for Python and try it
	@scripts/check-python

check:          ## Every target, every test, every gate
	@scripts/check

bench:          ## Build and run the benchmarks, write docs/performance.md and draw its charts
	@scripts/bench --write

coverage:       ## Measure the lines and branches that the tests run
	@scripts/coverage

reliability:    ## Sum the reports of the tests and write them to docs/reliability.md
	@scripts/reliability --write

reference:      ## Generate the reference of every public name: build/reference/html/index.html
	@scripts/reference

guide:          ## Copy the code and output of the examples into docs/guide.md and README.md
	@scripts/guide

quirks:         ## Write docs/quirks.md from the comments `// Kept:` of the sources
	@/usr/bin/env python3 -B tools/pages/quirks.py --write

xml-check:      ## Write the classes of `ravo xml check` to docs/xml-check.md
	@/usr/bin/env python3 -B tools/pages/xml_check.py --write

invoices:       ## Write the rules of `ravo isdoc check` to docs/invoices.md and docs/invoices.cs.md
	@/usr/bin/env python3 -B tools/pages/invoices.py --write

pictures:       ## Draw docs/structure.svg and the charts of docs/performance.md
	@/usr/bin/env python3 -B tools/pages/structure.py --write
	@/usr/bin/env python3 -B tools/pages/chart.py --write

package:        ## Build the packages of a release in build/packages
	@scripts/package

check-packages: ## Build the packages, install or unpack each, and use it
	@scripts/check-packages

format:         ## Format all C and C++ sources
	@scripts/format -i

clean:          ## Remove everything that was built
	rm -rf build
