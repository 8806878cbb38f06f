// How reports look: on light and dark screens, on paper, and to eyes that tell few colours apart.
#pragma once

namespace tessaryn {

// The lines of up to six systems in one drawing; dashes tell further ones apart, and each has its letter.
inline constexpr int kLineColours = 6;

inline constexpr const char* kReportStyle = R"(
:root{color-scheme:light dark;--page:#fff;--panel:#f5f7f8;--ink:#1b1f23;--soft:#4f5b66;--line:#d3d8dc;
--win:#0072b2;--loss:#c2570c;--c0:#0072b2;--c1:#c2570c;--c2:#00795a;--c3:#a8487f;--c4:#7a6200;--c5:#4f5b66}
@media(prefers-color-scheme:dark){:root{--page:#1f2428;--panel:#272d32;--ink:#ecf0f3;--soft:#aeb9c2;
--line:#464e55;--win:#56b4e9;--loss:#f2a35e;--c0:#56b4e9;--c1:#f2a35e;--c2:#3cc98a;--c3:#e79ac6;
--c4:#e0cf52;--c5:#c3ccd3}}
*{box-sizing:border-box}
body{font:16px/1.5 system-ui,sans-serif;color:var(--ink);background:var(--page);max-width:62rem;
margin:0 auto;padding:2rem 1.25rem}
h1{font-size:1.6rem;line-height:1.25;margin:0 0 .25rem}
h2{font-size:1.25rem;margin:0 0 .75rem;overflow-wrap:anywhere}
h3{font-size:1rem;margin:1.25rem 0 .5rem;overflow-wrap:anywhere}
p{margin:.5rem 0;overflow-wrap:anywhere}
section{margin-top:2.5rem;border-top:1px solid var(--line);padding-top:1.25rem}
small,figcaption,.soft{color:var(--soft);font-size:.85rem}
.words{background:var(--panel);border:1px solid var(--line);border-radius:6px;padding:.5rem 1rem;margin:1rem 0}
.verdict{font-size:1.1rem}
.note{border-left:4px solid var(--loss);padding-left:.75rem}
.wide{overflow-x:auto;margin:.75rem 0}
table{border-collapse:collapse;font-variant-numeric:tabular-nums}
th,td{padding:.25rem 0 .25rem 1.25rem;text-align:right;border-bottom:1px solid var(--line);
vertical-align:top;font-weight:400;white-space:nowrap}
thead th{font-weight:600;vertical-align:bottom}
th:first-child,td:first-child{text-align:left;padding-left:0}
tbody th{white-space:normal;overflow-wrap:anywhere;min-width:9rem}
tr.mean th,tr.mean td{font-weight:700}
table.facts th{color:var(--soft);width:14rem}
table.facts td{text-align:left;white-space:normal;overflow-wrap:anywhere}
table.ranking td:first-child{width:2rem}
table.ranking tbody th{text-align:left;padding-left:0;min-width:15rem}
table.ranking thead th:nth-child(2){text-align:left;padding-left:0}
table.ranking small{display:block}
table.quantiles td,table.quantiles th{padding-left:.75rem}
table.quantiles th:first-child{padding-left:0}
.key{display:inline-block;min-width:1.4em;font-weight:700}
.map td,.map th{font-size:.9rem}
.map td{text-align:center;padding:.4rem .35rem;min-width:3.2rem;border:2px solid var(--page);-webkit-print-color-adjust:exact;
print-color-adjust:exact}
.map th{padding:.4rem .35rem;border:0;font-weight:600;text-align:center;min-width:0;white-space:nowrap}
.map tbody th{text-align:right}
.map td.best{outline:3px solid var(--ink);outline-offset:-2px;font-weight:700}
.map td.near{outline:2px dotted var(--ink);outline-offset:-2px}
.bar{display:inline-block;width:8rem;height:.8rem;vertical-align:middle;margin:0 .5rem;
-webkit-print-color-adjust:exact;print-color-adjust:exact}
figure{margin:1rem 0;overflow-x:auto}
svg{display:block;width:100%;min-width:34rem;height:auto}
svg text{fill:var(--soft);font:12px system-ui,sans-serif;font-variant-numeric:tabular-nums}
svg text.key{fill:var(--ink);font-weight:700}
.grid{stroke:var(--line)}.zero{stroke:var(--soft);stroke-dasharray:4 3}
.edge{stroke:var(--ink);stroke-dasharray:2 3}
pre{overflow-x:auto;padding:.75rem 1rem;background:var(--panel);border:1px solid var(--line);border-radius:6px;
font-size:.85rem;white-space:pre-wrap;overflow-wrap:anywhere}
details{margin:.75rem 0}summary{cursor:pointer;color:var(--soft)}
@media print{:root{color-scheme:light;--page:#fff;--panel:#fff;--ink:#000;--soft:#333;--line:#bbb;
--win:#0072b2;--loss:#c2570c;--c0:#0072b2;--c1:#c2570c;--c2:#00795a;--c3:#a8487f;--c4:#7a6200;--c5:#4f5b66}
@page{margin:15mm}body{font-size:10pt;max-width:none;padding:0}h2,h3{break-after:avoid}
figure,tr,.words{break-inside:avoid}.wide,figure,pre{overflow:visible}svg{min-width:0}
section{margin-top:1.5rem}section.system{break-before:page}svg *{-webkit-print-color-adjust:exact;
print-color-adjust:exact}th,td{padding-left:.7rem}.map td,.map th{font-size:8pt;padding:2pt 3pt;min-width:0}details{display:none}}
)";

}  // namespace tessaryn
