# The small site that scripts/tour works on. Sourced by it, after common.sh.

# landscape FILE SIZE SKY SUN FAR-HILLS NEAR-HILLS
landscape() {
  local file=$1 size=$2 sky=$3 sun=$4 far=$5 near=$6
  convert -size 320x240 "gradient:$sky" -fill "$sun" -draw 'circle 235,70 235,100' \
    -fill "$far" -draw 'ellipse 80,230 170,90 0,360' -draw 'ellipse 270,240 140,70 0,360' \
    -fill "$near" -draw 'ellipse 160,280 260,90 0,360' -resize "$size" -strip "$file"
}

# make_site FOLDER: a page, a Java source with one error, pictures, and what is none.
make_site() {
  local site=$1
  mkdir "$site/pictures" "$site/stencils" "$site/texts" "$site/visitors"

  cat >"$site/index.html" <<'END'
<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN"
    "http://www.w3.org/TR/html4/loose.dtd">
<html>
    <head>
        <meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1">
        <title>The garden by the river</title>
    </head>
    <body bgcolor="#f4f8ee" text="#203020">
        <h1>The garden by the river</h1>

        <p><img src="pictures/meadow.jpg" width="160" height="120" alt="The meadow in May"
            align="right">Between the old mill and the bridge lies a garden that
            <b>anybody may visit</b>, from the first of April on. It is kept by
            its neighbours.</p>

        <h2>What grows when</h2>
        <table border="1" cellpadding="4">
            <tr><th>Month</th><th>Flower</th><th>Where</th></tr>
            <tr><td>April</td><td>Fritillaries</td><td>the wet meadow</td></tr>
            <tr><td>June</td><td>Roses</td><td>along the wall</td></tr>
            <tr><td>August</td><td>Water lilies</td><td>the pond</td></tr>
        </table>

        <h2>Find your way</h2>
        <ul>
            <li>By train: ten minutes on foot from the station.</li>
            <li>By bicycle: along the <a href="river.html">river path</a>.</li>
        </ul>

        <p align="center"><i>Dogs are welcome on a lead.</i></p>
    </body>
</html>
END
  cat >"$site/Seasons.java" <<'END'
/** Tells when to come. */
public class Seasons {
    static final String[] MONTHS = {"April", "June", "August"};

    public static void main(String[] argv) {
        for (int i = 0; i < MONTHS.length; i++) {
            System.out.println("In " + MONTH[i] + " there is something in bloom.");
        }
    }
}
END
  (
    cd "$site/pictures" &&
      landscape meadow.jpg 320x240 '#8fc7ea-#eef6fb' '#fff3b0' '#6fae5b' '#3f8a45' &&
      landscape evening.jpg 320x240 '#5b5f97-#ffb47a' '#ffd98a' '#6a4c6d' '#33294a' &&
      landscape frost.png 240x180 '#c9d6df-#f7fbff' '#ffffff' '#aebfca' '#8299a8' &&
      landscape autumn.png 160x120 '#e7d7b5-#fdf6e3' '#f2a65a' '#c8702a' '#7c3f1d' &&
      landscape pond.gif 120x160! '#a7d8de-#e6f5f2' '#f9f4c8' '#4f9d8c' '#2f6f7a' &&
      landscape stamp.bmp 48x48! '#8fc7ea-#eef6fb' '#fff3b0' '#6fae5b' '#3f8a45' &&
      printf 'Ask the mill for older ones.\n' >notes.txt &&
      printf 'BM, but no picture' >spoilt.bmp
  ) || fail "painting the pictures of the site"
}
