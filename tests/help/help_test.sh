#!/usr/bin/env bash
# The help page: valid, of the size that the resources promise, and readable in a browser.
#   help_test.sh PAGE
set -eu
page=$(realpath "$1")
fail() { echo "help page: $*" >&2; exit 1; }
[ "$(stat -c %s "$page")" = 7231 ] || fail "not 7231 bytes"
tidy -quiet -errors -latin1 "$page" || fail "not valid"
browser=$(command -v chromium) || { echo "No chromium here: the page was not tried in a browser."; exit 0; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Shows the page in a narrow and a wide frame, and tells what came of it.
cat >"$work/frame.html" <<END
<meta charset="utf-8"><iframe src="file://$page" height="900"></iframe><pre></pre><script>
const frame = document.querySelector("iframe");
frame.onload = () => {
  const shown = frame.contentDocument, wide = [320, 1200].filter(width => {
    frame.style.width = width + "px";
    return shown.documentElement.scrollWidth > width + 4; });
  document.querySelector("pre").textContent = [shown.characterSet, "too wide in [" + wide + "]",
    shown.body.textContent.includes("così com'è"), ...[...shown.querySelectorAll("h2")].map(h => h.textContent.trim()),
    frame.contentWindow.getComputedStyle(shown.body).backgroundColor].join("|");
};
</script>
END
show() {
  timeout 60 "$browser" --headless --no-sandbox --disable-gpu --no-first-run --disable-sync \
    --disable-background-networking --disable-component-update --user-data-dir="$work/profile" \
    --allow-file-access-from-files "$@" --virtual-time-budget=3000 --dump-dom "file://$work/frame.html" 2>/dev/null
}
light=$(show) dark=$(show --blink-settings=preferredColorScheme=0)
wanted="windows-1252|too wide in []|true|Calcoli tra date|Calcoli con le ore|Calcoli con le date e con le ore|Barra di stato|Miscellanea|"
[[ $light = *"$wanted"* ]] || fail "no '$wanted' in: $light"
[ "$light" != "$dark" ] || fail "the same in dark mode: $dark"
