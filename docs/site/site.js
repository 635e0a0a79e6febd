// Marks the page in the contents, with its sections below, lets wide tables scroll by themselves, and
// gives a title to the pages that Doxygen leaves without one.
document.addEventListener("DOMContentLoaded", function () {
    if (!document.querySelector(".title")) {
        const header = document.createElement("div");
        header.className = "header";
        header.innerHTML = '<div class="headertitle"><div class="title"></div></div>';
        header.querySelector(".title").textContent = document.title.split(" - ")[0];
        document.querySelector(".contents").before(header);
    }
    const page = location.pathname.split("/").pop() || "index.html";
    const here = document.querySelector('#contents a[href$="' + page + '"]');
    const titles = document.querySelectorAll(".textblock h1, .textblock h2");
    if (here) {
        here.setAttribute("aria-current", "page");
        const sections = document.createElement("ul");
        // What a page calls a section: the highest headings that there are below its title.
        const level = document.querySelector(".textblock h1") ? "H1" : "H2";
        for (const title of titles) {
            const anchor = title.querySelector("a.anchor");
            if (title.tagName !== level || !anchor)
                continue;
            const link = document.createElement("a");
            link.href = "#" + anchor.id;
            link.textContent = title.textContent.trim();
            const item = document.createElement("li");
            item.append(link);
            sections.append(item);
        }
        if (sections.children.length > 1)
            here.after(sections);
        if (here.offsetTop > window.innerHeight / 2)
            document.getElementById("contents").scrollTop = here.offsetTop - window.innerHeight / 3;
    }
    document.getElementById("contents").addEventListener("click", function () {
        document.getElementById("menu").checked = false;
    });
    for (const table of document.querySelectorAll("table.markdownTable, table.doxtable, table.memberdecls, table.fieldtable, table.directory")) {
        const frame = document.createElement("div");
        frame.className = "scroll";
        table.replaceWith(frame);
        frame.append(table);
    }
});
