// SPDX-License-Identifier: GPL-3.0-or-later
// A search on the page: shows the sections, table rows and contents that have all words. Without
// scripts the page is complete.
"use strict";

const parts = "section, tbody tr, .contents li";

function show(text) {
  const words = text.toLowerCase().split(/\s+/).filter(Boolean);
  const has = (element) => words.every((word) => element.textContent.toLowerCase().includes(word));
  for (const part of document.querySelectorAll(parts)) part.hidden = !has(part);
  // What is found by its heading is shown whole.
  for (const whole of document.querySelectorAll("section, .contents > li")) {
    const heading = whole.querySelector("h2, a");
    const inside = [...whole.querySelectorAll(parts)];
    if (has(heading) || inside.every((part) => part.hidden))
      for (const part of inside) part.hidden = false;
  }
}

const box = document.createElement("input");
box.type = "search";
box.className = "search";
box.placeholder = "Search this page";
box.setAttribute("aria-label", box.placeholder);
box.addEventListener("input", () => show(box.value));
document.querySelector("h1").after(box);
