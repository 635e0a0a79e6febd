#include "stitchplan/arguments.h"

#include "host/CommandLine.h"
#include "host/utf8.h"

namespace stitchplan {

using namespace host;

const char* const helpText =
    R"(Usage: zarnex-stitchplan [--svg PICTURE] MOTIF | -

Plans the stitches of a motif: fills its outlines with rows of stitches, sews
along them, and prints what comes of it. MOTIF is a text file; "-" is the
standard input.

  --svg PICTURE  draw the hoop with the stitches in it
  --help-motif   tell how a motif is written
  --             what follows is a motif
  --help, --version

Status: 0, or 2 with a line that says what is wrong; then neither a summary nor
a picture is written.

  zarnex-stitchplan leaf.motif
  zarnex-stitchplan --svg leaf.svg leaf.motif
  sed 's/^angle.*/angle 90/' leaf.motif | zarnex-stitchplan -
)";

const char* const motifHelpText =
    R"(A motif is a text file, a statement a line; what follows a "#" is a comment.

  title A leaf            what the summary and the picture call it
  hoop 100 mm x 80 mm     its width and height; the middle is the point 0, 0.
                          Required
  units in                what numbers without a unit count in from here on;
                          mm at first
  stitch 2.5 mm           the length of a stitch, or "10 spi"; 2.5 mm if not
                          given
  spacing 0.4 mm          from row to row of a fill, or "60 spi"; 0.4 mm if not
                          given
  angle 45 degrees        of the rows, counter-clockwise; 0 if not given
  scale 120 %             of outlines and circles; 100 % if not given
  outline                 begins an outline; points may follow on the same line
  point 1 cm, -0.5 in     a corner; several with semicolons between
  close                   ends the outline, which closes with its first point
  circle 9, 0; 0, 9; -9, 0      an outline through three points
  repeat mirrored         adds the mirror image, left to right, of the whole
                          motif
  repeat flipped          the same upside down
  repeat 6 by 60 degrees  makes it 6 in all, each turned by 60 degrees from the
                          last

An outline inside another is a hole in it, one in the hole is filled again; they
must not touch. Repeats take what the repeats above them made. Copies may
overlap and are then sewn one over the other. A stitch may be up to 0.3 mm
longer than asked for where the rest would be shorter than that, and rows of
less than 0.3 mm are left out.

Lengths are typed as for zarnex-units, 10 m at most. There may be 20000 corners,
1000 copies, 1000000 rows and 10000000 stitches in a file of 4 MiB.
)";

Arguments parseArguments(const std::vector<std::string>& given) {
    using Task = Arguments::Task;
    Arguments arguments;
    CommandLine line(given);
    while (line.next()) {
        const std::string& text = line.text();
        if (!line.isOption()) {
            if (!arguments.motif.empty())
                throw UsageError("more than one motif");
            if (text.empty())
                throw UsageError("no motif");
            arguments.motif = text;
        } else if (text == "--help" || text == "-h" || text == "--version") {
            arguments.task = text == "--version" ? Task::version : Task::help;
            return arguments;
        } else if (text == "--help-motif") {
            arguments.task = Task::motifHelp;
            return arguments;
        } else if (text == "--svg") {
            const std::string picture = line.value("the name of a file");
            if (picture == "-")
                throw UsageError("--svg needs the name of a file");
            if (!arguments.picture.empty())
                throw UsageError("more than one --svg");
            arguments.picture = picture;
        } else {
            throw UsageError("not an option: " + quoted(text));
        }
    }
    if (arguments.motif.empty())
        throw UsageError("no motif");
    return arguments;
}

} // namespace stitchplan
