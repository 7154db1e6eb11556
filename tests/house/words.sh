#!/bin/bash
# The project's files stand alone: they name no document that does not travel with them, no path of one
# machine, no mirror's host.
cd "$(dirname "$0")/../.." || exit 1
export LC_ALL=C
patterns=(
  '\b[P]art [0-9]+\.[0-9]+'
  '\b[Tt]he [s]pecification\b'
  '\b(spec|readings|semantics|platform-notes)[.]md\b'
  '(^|[^A-Za-z0-9_.])/(work|root|home)/[A-Za-z0-9_]'
  '\bdeb[.]debian[.]org\b|\bregistry[.]npmjs\b'
)
status=0
for pattern in "${patterns[@]}"; do
  if scripts/sources.sh '[a-z0-9]+' | grep -vE '^DEVELOPERS[.]md$|\.(png|jpg|bmp|tlb|ico|pdf|zip)$' |
    xargs -d '\n' grep -nIE "$pattern"; then status=1; fi
done
[ $status -eq 0 ] || echo "To mend: say in the line itself what the reader needs to know, and drop the reference"
exit $status
