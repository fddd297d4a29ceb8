# From docs/performance.md: family, then the ratios of the C library, of SLEEF's fastest function and of xsimd for
# vectors of 16 lanes, operands in range; a - where there is none. awk -F'|'
function ratio(text) { gsub(/[^0-9.]/, "", text); return text == "" ? "-" : text }
/^## / { inside = /^## In range/ }
{ family = $2; gsub(/[^a-z0-9_]/, "", family) }
inside && $3 + 0 == 16 && family ~ /^(sqrtf|rsqrtf|expf|exp2f|exp10f|logf|log2f|log10f|sinf|cosf|sincosf|floorf|rintf|roundf|truncf|fmaf)$/ {
    fastest = "-"
    for (i = 5; i <= 8; ++i) {
        sleef = ratio($i)
        if (sleef != "-" && (fastest == "-" || sleef + 0 < fastest + 0)) fastest = sleef
    }
    print family, ratio($4), fastest, ratio($9)
}
