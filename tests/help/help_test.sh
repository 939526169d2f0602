#!/usr/bin/env bash
# The help page: valid, of the size that the resources promise, and readable in a browser.
#   help_test.sh PAGE
set -eu
page=$(realpath "$1")
fail() { echo "help page: $*" >&2; exit 1; }

[ "$(stat -c %s "$page")" = 7231 ] || fail "not 7231 bytes"
tidy -quiet -errors -latin1 "$page" || fail "not valid"

browser=$(command -v chromium || true)
[ -n "$browser" ] || { echo "No chromium here: the page was not tried in a browser."; exit 0; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Shows the page in a narrow and a wide frame, light or dark, and reports what came of it.
cat >"$work/frame.html" <<END
<meta charset="utf-8"><iframe src="file://$page" height="900"></iframe><pre></pre><script>
const frame = document.querySelector("iframe"), out = document.querySelector("pre");
frame.onload = () => {
  const shown = frame.contentDocument, sections = shown.querySelectorAll("h2");
  out.textContent = "charset " + shown.characterSet + "\n";
  for (const width of [320, 1200]) {
    frame.style.width = width + "px";
    out.textContent += width + " overflows " + (shown.documentElement.scrollWidth > width + 4) + "\n";
  }
  const style = frame.contentWindow.getComputedStyle(shown.body);
  out.textContent += "ground " + style.backgroundColor + " text " + style.color + "\n";
  out.textContent += [...sections].map(s => s.textContent.trim()).join("|") + "\n" +
    (shown.body.textContent.includes("così com'è") ? "accents" : "no accents");
};
</script>
END
show() {
  timeout 60 "$browser" --headless --no-sandbox --disable-gpu --no-first-run --disable-sync \
    --disable-background-networking --disable-component-update --user-data-dir="$work/profile" \
    --allow-file-access-from-files "$@" --virtual-time-budget=3000 --dump-dom \
    "file://$work/frame.html" 2>/dev/null | sed -n '/<pre>/,/<\/pre>/p'
}
light=$(show)
dark=$(show --blink-settings=preferredColorScheme=0)
for wanted in "320 overflows false" "1200 overflows false" accents "charset windows-1252" \
  "Calcoli tra date|Calcoli con le ore|Calcoli con le date e con le ore|Barra di stato|Miscellanea"; do
  case "$light" in *"$wanted"*) ;; *) fail "no '$wanted' in: $light" ;; esac
done
[ "$(grep ground <<<"$light")" != "$(grep ground <<<"$dark")" ] || fail "the same in dark mode: $dark"
