// Meshes, phases and tables.

#include <examples/gallery/pictures.h>
#include <examples/gallery/shapes.h>
#include <examples/gallery/sheet.h>

#include <ox/core/ox_log.h>
#include <ox/io/ox_csv.h>
#include <ox/mesh/ox_mesh.h>
#include <ox/mesh/ox_vertex_optimizer.h>
#include <ox/progress/ox_progress_manager.h>

namespace gallery {

namespace {

using ox::ox_3dvector;

void draw_welding(const folders& to) {
    // Three places, each with a few corners of triangles; a cell of the welder ends at x = 4.
    const contour given =
        flat({1,     1,    1.2f, 1.15f, 0.9f, 1.2f, 2.4f, 2.6f,  2.6f,  2.5f, 2.45f,
              2.35f, 3.9f, 1,    4.1f,  1.1f, 5.6f, 2.3f, 5.75f, 2.45f, 5.5f, 2.5f});
    ox::ox_vertex_optimizer welder(0.4f, 1.0f);
    welder.add_vertices(given);
    const auto& welded = welder.get_optimized_vertices();
    sheet page(2, 1, 270, 140);
    for (int i = 0; i < 2; ++i) {
        page.panel(i,
                   i == 0 ? std::to_string(given.size()) + " corners of triangles"
                          : std::to_string(welded.size()) + " vertices: the first of each place",
                   0, 0.2, 8, 3.6);
        for (const double border : {0.0, 2.0, 4.0, 6.0, 8.0}) {
            page.line(border, 0.3, border, 3.5, border == 4 ? ink::wrong : ink::faint, 1, true);
        }
        page.text(3.9, 3.3, "border of cells", ink::wrong, 1, 9.5);
        for (int k = 0; k < given.size(); ++k) {
            const ox_3dvector& p = given[k];
            const ox_3dvector& w = welded[static_cast<int>(welder.get_mapping()[k])];
            if (i == 1) {
                page.line(double{p.x}, double{p.y}, double{w.x}, double{w.y}, ink::faint);
            }
            page.dot(double{p.x}, double{p.y}, i == 0 ? ink::line : ink::faint, 2.2);
        }
        for (int k = 0; i == 1 && k < welded.size(); ++k) {
            page.dot(double{welded[k].x}, double{welded[k].y}, ink::result, 3.6);
        }
        page.text(4.15, 0.62, "apart", ink::wrong, 0, 9.5);
    }
    page.save(to.figures + "/welding", to.preview("welding"));
}

void draw_half_edges(const folders& to) {
    const contour v = flat({0, 0, 4, 0.3f, 2, 3, 6, 3.2f});
    ox::ox_mesh mesh;
    mesh.set_vertices(v);
    mesh.set_triangles(ox::ox_make_list<unsigned int>({0, 1, 2, 1, 3, 2}));
    mesh.build_half_edges();
    sheet page(1, 1, 360, 200);
    page.panel(0, "half-edges: blue have an opposite, red have none", -0.6, -0.6, 6.6, 3.8);
    for (int t = 0; t < 2; ++t) {
        page.fill_triangle(v[t == 0 ? 0 : 1], v[t == 0 ? 1 : 3], v[2], ox::ox_color(0.96f));
    }
    for (const ox::ox_mesh::ox_half_edge* side : mesh.get_half_edges()) {
        const auto& corners = mesh.get_triangles();
        const int first = static_cast<int>(3 * side->triangle);
        const ox_3dvector middle =
            (v[static_cast<int>(corners[first])] + v[static_cast<int>(corners[first + 1])] +
             v[static_cast<int>(corners[first + 2])]) /
            3.0f;
        const auto inside = [&](unsigned int corner) {
            return v[static_cast<int>(corner)] * 0.86f + middle * 0.14f;
        };
        const ox_3dvector a = inside(side->start), b = inside(side->end);
        page.arrow(double{a.x}, double{a.y}, double{b.x}, double{b.y},
                   side->opposite != nullptr ? ink::first : ink::wrong);
        page.text(double{middle.x}, double{middle.y}, "triangle " + std::to_string(side->triangle),
                  ink::faint, 0.5, 9.5);
    }
    for (int i = 0; i < v.size(); ++i) {
        page.dot(double{v[i].x}, double{v[i].y}, ink::line, 3);
        const double away = i < 2 ? -0.3 : 0.3;
        page.text(double{v[i].x}, double{v[i].y} + away, std::to_string(i), ink::line, 0.5, 11,
                  true);
    }
    page.save(to.figures + "/half_edges", to.preview("half_edges"));
}

/// Keeps what was reported last.
class last_report : public ox::ox_progress_manager {
public:
    double value = 0;

private:
    bool set_progress(double progress) override {
        value = progress;
        return true;
    }
};

void draw_phases(const folders& to) {
    last_report bar;
    const struct {
        const char *name, *parent;
        double weight;
        int depth;
    } phases[] = {
        {"load", "", 1, 0},         {"compute", "", 4, 0},         {"write", "", 1, 0},
        {"walls", "compute", 2, 1}, {"openings", "compute", 1, 1}, {"roof", "compute", 1, 1}};
    for (const auto& phase : phases) {
        bar.add_phase(phase.name, phase.parent, phase.weight);
    }
    sheet page(1, 1, 460, 118);
    page.panel(0, "each phase tiles its parent's stretch by its weight", 0, 0.0, 4.6, 1.15);
    for (const auto& phase : phases) {
        bar.set_current_phase(phase.name);
        const double start = bar.compute_phase_progress(0), end = bar.compute_phase_progress(1);
        const double low = phase.depth == 0 ? 0.62 : 0.22;
        page.box(4.6 * start + 0.01, low, 4.6 * end - 0.01, low + 0.34,
                 pale(phase.depth == 0 ? ink::first : ink::result));
        page.text(2.3 * (start + end), low + 0.21, phase.name);
        page.text(2.3 * (start + end), low + 0.08, "weight " + number(phase.weight, 0), ink::line,
                  0.5, 8.5);
        if (phase.depth > 0) {
            page.text(4.6 * start, 0.1, number(start, 3), ink::line, 0.5, 8.5);
        }
    }
    page.text(0, 0.1, "0", ink::line, 0, 8.5);
    page.text(4.6, 0.1, "1", ink::line, 1, 8.5);
    bar.set_current_phase("openings");
    const double now = bar.compute_phase_progress(0.95);
    page.line(4.6 * now, 0.18, 4.6 * now, 1.02, ink::wrong, 1.6);
    page.text(4.6 * now, 1.08, "95 % of openings: " + number(now, 3), ink::wrong, 0.5, 8.5);
    page.save(to.figures + "/phases", to.preview("phases"));
}

/// The cells of a text as the library reads them, those of the header shaded.
void draw_table(sheet& page, int panel, const std::string& caption, const std::string& text) {
    ox::ox_csv table;
    table.read_string(text);
    page.panel(panel, caption, 0, 0, 6.4, 2.9);
    for (int column = 0; column < table.get_nb_columns(); ++column) {
        ox::ox_list<std::string> cells, headers;
        ox::ox_list<float> values;
        table.get_column(column, cells);
        table.get_column(column, headers, values);
        for (int row = 0; row < cells.size(); ++row) {
            const double x = 0.1 + 2.1 * column, y = 2.2 - 0.6 * row;
            page.box(x, y, x + 2.05, y + 0.55,
                     row < headers.size() ? pale(ink::second) : pale(ink::first));
            page.text(x + 0.1, y + 0.27, cells[row], ink::line, 0, 9.5);
        }
    }
}

void draw_tables(const folders& to) {
    sheet page(2, 1, 230, 105);
    draw_table(page, 0, "numbers first: one header line (orange)",
               "pieces;part;volume\n1;wall;12.345\n2;slab;18.9\n14;roof;7.25\n");
    draw_table(page, 1, "texts first: every line is a value",
               "part;pieces;volume\nwall;1;12.345\nslab;2;18.9\nroof;14;7.25\n");
    page.save(to.figures + "/tables", to.preview("tables"));
}

} // namespace

void draw_mesh_ideas(const folders& to) {
    ox_log_set(false); // tables log what they find
    draw_welding(to);
    draw_half_edges(to);
    draw_phases(to);
    draw_tables(to);
}

} // namespace gallery
