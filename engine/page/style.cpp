#include "engine/page/style.h"

#include <string_view>

namespace korventally::engine {

// The colours of the classes run from light to dark in steps that a grey copy shows as well, and on
// a dark screen from dark to light. Texts of drawings are given in the units of the drawing, which
// are smaller than a pixel on a narrow screen and larger on a wide one.
const std::string_view kStyle = R"css(
:root{--ink:#1c2530;--soft:#566372;--rule:#d4dae1;--grid:#e4e8ed;--paper:#fff;--panel:#f7f8fa;
--strong:#b23a06;--good:#1d6b4f;--mark:#35404c;--limit:#a3123a;--course:#2c6699;
--c0:#f6f1bf;--c1:#d3e08d;--c2:#9ccc83;--c3:#62b186;--c4:#2f8f96;--c5:#2c6699;--c6:#3f3f8f;--c7:#3a0f56}
@media screen and (prefers-color-scheme:dark){
:root{color-scheme:dark;--ink:#e6eaef;--soft:#a5b0bc;--rule:#3a444f;--grid:#2b333c;--paper:#12161b;
--panel:#1a2027;--strong:#ff9a62;--good:#7fd6b0;--mark:#c9d2dc;--limit:#ff8fa8;--course:#8fc3ea;
--c0:#43306b;--c1:#3f4a8c;--c2:#35699b;--c3:#2f8a97;--c4:#49ab85;--c5:#8fc873;--c6:#d3dc74;--c7:#fbf6c4}}
*{box-sizing:border-box}
body{margin:0;background:var(--paper);color:var(--ink);
font:16px/1.5 "Segoe UI",system-ui,"Liberation Sans",Arial,sans-serif}
header,main,footer{max-width:84rem;margin:0 auto;padding:0 1.25rem}
header{padding-top:1.5rem;color:var(--soft)}
header p{margin:0}
header .case{color:var(--ink);font-weight:600}
footer{padding-top:1rem;padding-bottom:2rem;color:var(--soft);font-size:.875rem}
h1{margin:0 0 .25rem;font-size:1.75rem;line-height:1.2}
h2{margin:0 0 .5rem;font-size:1.125rem}
p,li,dd,td,figcaption{overflow-wrap:anywhere}
.verdict{margin:1rem 0;padding:1rem 1.25rem;background:var(--panel);border-left:.5rem solid var(--good)}
.verdict p{margin:0;max-width:60rem}
.verdict.exceeding{border-color:var(--c5)}
.verdict.significant{border-color:var(--strong)}
.warnings{margin:1rem 0;padding:.75rem 1.25rem;border:2px solid var(--strong)}
.warnings ul{margin:0;padding-left:1.25rem}
.fine{color:var(--soft)}
.pictures,.facts{display:grid;gap:2rem;grid-template-columns:repeat(auto-fit,minmax(min(100%,28rem),1fr))}
.facts{margin:2rem 0;gap:2rem 3rem}
.picture{min-width:0}
.picture.whole{grid-column:1/-1}
figure{margin:0}
svg{display:block;width:100%;max-width:46rem;height:auto}
.series svg{max-width:none}
figcaption{margin-top:.5rem;color:var(--soft);font-size:.875rem}
svg text{font-size:13px;fill:var(--ink)}
.series text{font-size:8px}
.frame{fill:var(--panel);stroke:var(--rule)}
.grid{stroke:var(--grid)}
.bar{stroke:var(--ink);stroke-width:2}
.marks use,.marks circle{stroke:var(--mark);stroke-width:.8}
.ring{fill:none;stroke:var(--ink);stroke-width:1.5}
.below{dominant-baseline:hanging}
.beside{dominant-baseline:central}
.halo{paint-order:stroke;stroke:var(--paper);stroke-width:4px;stroke-linejoin:round}
svg .strong,.ring+text{font-weight:700}
.under{stroke:var(--paper);stroke-width:5}
.limit-line{stroke:var(--limit);stroke-width:2;stroke-dasharray:8 4}
svg .limit-name{fill:var(--limit);font-weight:700}
.sil{stroke:var(--ink);stroke-width:2}
svg .sil-name{font-weight:700}
.total{stroke:var(--ink);stroke-width:1}
.part{stroke:var(--paper);stroke-width:1}
.course{fill:none;stroke:var(--course);stroke-width:1.2}
.above{fill:var(--strong);stroke:var(--paper);stroke-width:.6}
.left-out{fill:none;stroke:var(--ink);stroke-width:1.2}
.calm{fill:#3d7ea6;background:#3d7ea6}
.missing{fill:#c07d1a;background:#c07d1a}
.c0{fill:var(--c0);background:var(--c0)}.c1{fill:var(--c1);background:var(--c1)}
.c2{fill:var(--c2);background:var(--c2)}.c3{fill:var(--c3);background:var(--c3)}
.c4{fill:var(--c4);background:var(--c4)}.c5{fill:var(--c5);background:var(--c5)}
.c6{fill:var(--c6);background:var(--c6)}.c7{fill:var(--c7);background:var(--c7)}
.facility{fill:#b23a06;background:#b23a06}
.g0{fill:#8fbfe0;background:#8fbfe0}.g1{fill:#efcf57;background:#efcf57}
.g2{fill:#86c79b;background:#86c79b}.g3{fill:#c3a8dc;background:#c3a8dc}
.g4{fill:#e2b08c;background:#e2b08c}.g5{fill:#9adcda;background:#9adcda}
.rest{fill:#a9b1ba;background:#a9b1ba}.background{fill:#dfe3e8;background:#dfe3e8}
.leftover{fill:#fff;background:#fff;stroke:#566372;stroke-dasharray:3 2}
svg .sign{fill:#111;font-weight:600}
svg .on-facility{fill:#fff}
.legend{display:flex;flex-wrap:wrap;gap:.125rem 1rem;margin:.5rem 0 0;padding:0;list-style:none;font-size:.875rem}
.legend i{display:inline-block;min-width:1.1em;height:1.1em;vertical-align:-.15em;border:1px solid var(--mark)}
.legend .key{min-width:1.6em;height:1.5em;text-align:center;font-style:normal;font-weight:600;color:#111;line-height:1.4}
.legend .key.facility{color:#fff}
.legend .limit{color:var(--limit);font-weight:700}
dl{margin:0}
dl div{display:flex;flex-wrap:wrap;gap:0 1rem;padding:.2rem 0;border-bottom:1px solid var(--grid)}
dt{flex:0 0 12rem;color:var(--soft)}
dd{flex:1 1 12rem;margin:0}
.facts ul{margin:0;padding-left:1.25rem}
.wide{overflow-x:auto;margin:1.5rem 0 .5rem}
table{border-collapse:collapse;width:100%;font-size:.875rem;font-variant-numeric:tabular-nums}
caption{padding:0 0 .5rem;text-align:left;color:var(--soft)}
caption b{display:block;color:var(--ink);font-size:1rem}
caption span{position:sticky;left:0;display:inline-block;max-width:min(100vw - 1.5rem,60rem)}
th,td{padding:.25rem .6rem;border-bottom:1px solid var(--grid);text-align:left;vertical-align:top;white-space:nowrap}
th{border-bottom:2px solid var(--rule);color:var(--soft)}
th.n,td.n{text-align:right}
.below-row td{white-space:normal;color:var(--soft);padding-left:3rem}
tr:has(+.below-row) td{border-bottom:0}
@media (max-width:1250px){svg text{font-size:15px}.series text{font-size:12px}}
@media (max-width:600px){
body{font-size:15px}
header,main,footer{padding-left:.75rem;padding-right:.75rem}
h1{font-size:1.4rem}
svg text,.series text{font-size:22px}
.course{stroke-width:2}
.halo{stroke-width:8px}
.marks use,.marks circle{stroke-width:1.2}
dt{flex-basis:100%}}
@page{size:A4;margin:14mm}
@media print{
*{-webkit-print-color-adjust:exact;print-color-adjust:exact}
body{font-size:10pt}
header,main,footer{max-width:none;padding-left:0;padding-right:0}
svg text{font-size:13px}
.series text{font-size:11px}
.pictures,.facts{display:block}
.picture,.facts section{margin:0 0 6mm}
.picture svg{width:auto;max-width:100%;max-height:135mm}
.picture+.picture svg{max-height:180mm}
.picture,.verdict,.warnings li,.facts section,tr{break-inside:avoid}
h2{break-after:avoid}
.wide{overflow:visible}
table{font-size:7.5pt}
th,td{padding:.5mm 1mm}
tr:has(+.below-row){break-after:avoid}}
)css";

}  // namespace korventally::engine
